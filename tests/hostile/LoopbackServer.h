#pragma once

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

namespace tarn {
namespace test {

/// Listens on this machine for who should not call.
class LoopbackServer
{
public:
    LoopbackServer() : m_descriptor(socket(AF_INET, SOCK_STREAM, 0))
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* const name = reinterpret_cast<sockaddr*>(&address);
        if (bind(m_descriptor, name, size) != 0 || listen(m_descriptor, 8) != 0 ||
            getsockname(m_descriptor, name, &size) != 0) {
            close(m_descriptor);
            throw std::runtime_error("cannot listen");
        }
        m_address = "127.0.0.1:" + std::to_string(ntohs(address.sin_port));
    }
    ~LoopbackServer() { close(m_descriptor); }
    LoopbackServer(LoopbackServer const&) = delete;
    LoopbackServer& operator=(LoopbackServer const&) = delete;

    /// Host and port.
    std::string const& address() const { return m_address; }
    /// Whether someone has connected.
    bool wasCalled() const
    {
        pollfd events = {m_descriptor, POLLIN, 0};
        return poll(&events, 1, 0) > 0;
    }

private:
    int m_descriptor;
    std::string m_address;
};

}  // namespace test
}  // namespace tarn
