#include "preview/SitePreview.h"

#include "preview/SiteFolder.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/signal_set.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/string.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http.hpp>
#include <chrono>
#include <csignal>
#include <optional>
#include <string_view>

namespace iceline {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = boost::beast::http;
using asio::ip::tcp;

namespace {

/// A browser that says nothing for so long is let go.
constexpr std::chrono::seconds Patience{30};

/// Windows would let two programs listen at one port; other systems let a port be used again at once.
#ifdef _WIN32
constexpr bool ReuseAddress = false;
#else
constexpr bool ReuseAddress = true;
#endif

/// Bytes of the first line and the fields of a request.
constexpr std::uint32_t LargestHead = 16 << 10;

/// How long no browser is taken after the system could not give a handle for one.
constexpr std::chrono::milliseconds WaitForHandle{200};

SiteAnswer refused(unsigned status, const char* text) {
    SiteAnswer answer;
    answer.status = status;
    answer.body = text;
    return answer;
}

/// What a browser is told whose request cannot be taken; nothing when it has gone.
std::optional<SiteAnswer> refusalOf(beast::error_code error) {
    if (error == http::error::header_limit || error == http::error::buffer_overflow)
        return refused(431, "The request is too long.\n");
    if (error == http::error::unexpected_body || error == http::error::body_limit)
        return refused(413, "A request has no body here.\n");
    if (error.category() == make_error_code(http::error::bad_method).category() &&
        error != http::error::end_of_stream && error != http::error::partial_message)
        return refused(400, "This is no request for a page.\n");
    return std::nullopt;
}

/// Whether the Host of a request is a name of this machine's loopback, so that no page of another site can
/// read the league through a name that it makes point here.
bool isLoopback(std::string_view host) {
    const auto port = host.rfind(':');
    if (port != host.npos && host.find_first_not_of("0123456789", port + 1) == host.npos)
        host = host.substr(0, port);
    return beast::iequals({host.data(), host.size()}, "localhost") || host == "127.0.0.1" || host == "[::1]";
}

/// One browser's connection: lives as long as it has something to do.
class Connection : public std::enable_shared_from_this<Connection> {
public:
    Connection(tcp::socket socket, const SiteFolder& site) : stream_(std::move(socket)), site_(site) {}

    void read() {
        parser_.emplace();
        parser_->header_limit(LargestHead);
        stream_.expires_after(Patience);
        http::async_read(stream_, buffer_, *parser_,
                         [self = shared_from_this()](beast::error_code error, std::size_t) {
                             if (!error)
                                 self->answer();
                             else if (const auto refusal = refusalOf(error))
                                 self->send(*refusal, false, false);
                         });
    }

private:
    void answer() {
        const auto& request = parser_->get();
        const bool head = request.method() == http::verb::head;
        const std::string_view host(request[http::field::host].data(), request[http::field::host].size());
        const std::string_view target(request.target().data(), request.target().size());
        if (!isLoopback(host))
            send(refused(421, "This preview answers to localhost alone.\n"), head, false);
        else if (head || request.method() == http::verb::get)
            send(site_.answer(target), head, request.keep_alive());
        else
            send(refused(405, "Pages can only be read.\n"), head, request.keep_alive());
    }

    /// `head`: the answer without its body.
    void send(SiteAnswer answer, bool head, bool keepAlive) {
        response_ = {};
        response_.version(11);
        response_.result(answer.status);
        response_.keep_alive(keepAlive);
        response_.set(http::field::content_type, answer.contentType);
        response_.set(http::field::cache_control, "no-cache");
        response_.set("X-Content-Type-Options", "nosniff");
        if (answer.status == 405)
            response_.set(http::field::allow, "GET, HEAD");
        if (!answer.location.empty())
            response_.set(http::field::location, answer.location);
        response_.content_length(answer.body.size());
        if (!head)
            response_.body() = std::move(answer.body);
        write();
    }

    void write() {
        http::async_write(stream_, response_,
                          [self = shared_from_this()](beast::error_code error, std::size_t) {
                              if (!error && self->response_.keep_alive())
                                  self->read();
                          });
    }

    beast::tcp_stream stream_;
    const SiteFolder& site_;
    beast::flat_buffer buffer_;
    std::optional<http::request_parser<http::empty_body>> parser_;
    http::response<http::string_body> response_;
};

} // namespace

class SitePreview::Server {
public:
    Server(const std::filesystem::path& folder, unsigned short port)
        : site_(folder), acceptor_(context_, {asio::ip::address_v4::loopback(), port}, ReuseAddress) {
        accept();
    }

    unsigned short port() const { return acceptor_.local_endpoint().port(); }
    void serve() { context_.run(); }
    void stop() { context_.stop(); }

    void stopOnSignals() {
        signals_.add(SIGINT);
        signals_.add(SIGTERM);
        signals_.async_wait([this](beast::error_code error, int) {
            if (!error)
                stop();
        });
    }

private:
    void accept() {
        acceptor_.async_accept([this](beast::error_code error, tcp::socket socket) {
            if (error == asio::error::operation_aborted)
                return;
            if (error)
                return acceptLater();
            std::make_shared<Connection>(std::move(socket), site_)->read();
            accept();
        });
    }

    void acceptLater() {
        pause_.expires_after(WaitForHandle);
        pause_.async_wait([this](beast::error_code error) {
            if (!error)
                accept();
        });
    }

    SiteFolder site_;
    asio::io_context context_{1};
    tcp::acceptor acceptor_;
    asio::steady_timer pause_{context_};
    asio::signal_set signals_{context_};
};

SitePreview::SitePreview(const std::filesystem::path& folder, unsigned short port) try
    : server_(std::make_unique<Server>(folder, port)) {
} catch (const boost::system::system_error& error) {
    throw PreviewError("port " + std::to_string(port) +
                       " of this machine cannot be used for the preview: " + error.code().message());
}

SitePreview::~SitePreview() = default;

std::string SitePreview::address() const {
    return "http://127.0.0.1:" + std::to_string(server_->port()) + "/";
}

void SitePreview::serve() {
    server_->serve();
}

void SitePreview::stop() {
    server_->stop();
}

void SitePreview::stopOnSignals() {
    server_->stopOnSignals();
}

} // namespace iceline
