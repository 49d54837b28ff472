#include "preview/SitePreview.h"

#include "support/TemporaryFolder.h"
#include "support/Test.h"

#include <boost/asio/connect.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http.hpp>
#include <fstream>
#include <string>
#include <thread>

namespace iceline::test {

namespace {

namespace http = boost::beast::http;
using boost::asio::ip::tcp;

/// A preview that runs, and a browser that keeps its connection.
class SitePreviewTest : public testing::Test {
protected:
    SitePreviewTest() {
        std::ofstream(folder.path() / "index.htm", std::ios::binary) << "home";
        std::ofstream(folder.path() / "secret.txt", std::ios::binary) << "secret";
        browser.connect({boost::asio::ip::address_v4::loopback(), port()});
    }
    ~SitePreviewTest() override {
        preview.stop();
        server.join();
    }

    unsigned short port() const {
        return static_cast<unsigned short>(
            std::stoi(preview.address().substr(preview.address().rfind(':') + 1)));
    }

    http::response<http::string_body> ask(http::verb verb, const std::string& target,
                                          const std::string& host = "127.0.0.1") {
        http::request<http::empty_body> request(verb, target, 11);
        request.set(http::field::host, host);
        http::write(browser, request);
        return answer(verb);
    }

    /// The answer to a request in these words, on a connection of its own.
    http::response<http::string_body> say(const std::string& request) {
        browser = tcp::socket(context);
        browser.connect({boost::asio::ip::address_v4::loopback(), port()});
        boost::asio::write(browser, boost::asio::buffer(request));
        return answer(http::verb::get);
    }

    http::response<http::string_body> answer(http::verb verb) {
        http::response_parser<http::string_body> parser;
        parser.skip(verb == http::verb::head);
        boost::beast::flat_buffer buffer;
        http::read(browser, buffer, parser);
        return parser.release();
    }

    TemporaryFolder folder;
    SitePreview preview{folder.path(), 0};
    std::thread server{[this] { preview.serve(); }};
    boost::asio::io_context context;
    tcp::socket browser{context};
};

} // namespace

TEST_F(SitePreviewTest, AnswersOnTheLoopbackAddress) {
    EXPECT_THAT(preview.address(), testing::AllOf(StartsWith("http://127.0.0.1:"), testing::EndsWith("/")));
    const auto home = ask(http::verb::get, "/");
    EXPECT_EQ(home.result_int(), 200U);
    EXPECT_EQ(home.body(), "home");
    EXPECT_EQ(home[http::field::content_type], "text/html; charset=utf-8");
    EXPECT_EQ(ask(http::verb::get, "/absent.htm").result_int(), 404U);

    std::ofstream(folder.path() / "index.htm", std::ios::binary) << "published again";
    EXPECT_EQ(ask(http::verb::get, "/").body(), "published again");
}

TEST_F(SitePreviewTest, OnlyReads) {
    const auto head = ask(http::verb::head, "/index.htm");
    EXPECT_EQ(head[http::field::content_length], "4");
    EXPECT_EQ(head.body(), "");
    EXPECT_EQ(ask(http::verb::delete_, "/index.htm").result_int(), 405U);
    EXPECT_EQ(ask(http::verb::get, "/index.htm").body(), "home");
}

TEST_F(SitePreviewTest, AnswersToTheNamesOfTheLoopbackAlone) {
    for (const char* host : {"localhost", "LocalHost:8080", "127.0.0.1:1", "[::1]", "[::1]:8080"})
        EXPECT_EQ(ask(http::verb::get, "/", host).result_int(), 200U) << host;
    for (const std::string host : {"league.example", "127.0.0.1.example:80", "", "localhost:80x", "::1"})
        EXPECT_EQ(say("GET / HTTP/1.1\r\nHost: " + host + "\r\n\r\n").result_int(), 421U) << host;
    EXPECT_EQ(say("GET / HTTP/1.0\r\n\r\n").result_int(), 421U);
}

TEST_F(SitePreviewTest, SaysWhyARequestIsNotTaken) {
    const std::string host = "Host: localhost\r\n";
    const auto brew = say("BREW / HTTP/1.1\r\n" + host + "\r\n");
    EXPECT_EQ(brew.result_int(), 405U);
    EXPECT_EQ(brew[http::field::allow], "GET, HEAD");
    EXPECT_EQ(say("GET / HTTP/1.1\r\n" + host + "X: " + std::string(20'000, 'x') + "\r\n\r\n").result_int(),
              431U);
    EXPECT_EQ(say("POST / HTTP/1.1\r\n" + host + "Content-Length: 4\r\n\r\nbody").result_int(), 413U);
    EXPECT_EQ(say("no request\r\n\r\n").result_int(), 400U);
    EXPECT_EQ(say("GET / HTTP/1.1\r\n" + host + "\r\n").body(), "home");
}

TEST_F(SitePreviewTest, NamesThePortThatIsTaken) {
    try {
        const SitePreview second(folder.path(), port());
        FAIL() << "two previews at one port";
    } catch (const PreviewError& error) {
        EXPECT_THAT(error.what(),
                    StartsWith("port " + std::to_string(port()) + " of this machine cannot be used"));
    }
}

} // namespace iceline::test
