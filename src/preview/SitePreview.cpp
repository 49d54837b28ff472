#include "preview/SitePreview.h"

#include "preview/SiteFolder.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/signal_set.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http.hpp>
#include <chrono>
#include <csignal>

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

/// One browser's connection: lives as long as it has something to do.
class Connection : public std::enable_shared_from_this<Connection> {
public:
    Connection(tcp::socket socket, const SiteFolder& site) : stream_(std::move(socket)), site_(site) {}

    void read() {
        request_ = {};
        stream_.expires_after(Patience);
        http::async_read(stream_, buffer_, request_,
                         [self = shared_from_this()](beast::error_code error, std::size_t) {
                             if (!error)
                                 self->answer();
                         });
    }

private:
    void answer() {
        const bool head = request_.method() == http::verb::head;
        SiteAnswer answer =
            head || request_.method() == http::verb::get
                ? site_.answer({request_.target().data(), request_.target().size()})
                : SiteAnswer{405, "text/plain; charset=utf-8", "Pages can only be read.\n", ""};
        response_ = {};
        response_.version(request_.version());
        response_.result(answer.status);
        response_.keep_alive(request_.keep_alive());
        response_.set(http::field::content_type, answer.contentType);
        response_.set(http::field::cache_control, "no-cache");
        response_.set("X-Content-Type-Options", "nosniff");
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
    http::request<http::empty_body> request_;
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
            if (!error)
                std::make_shared<Connection>(std::move(socket), site_)->read();
            accept();
        });
    }

    SiteFolder site_;
    asio::io_context context_{1};
    tcp::acceptor acceptor_;
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
