#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/timerfd.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// Sends to everybody on a link, a steady number of bytes per second for some seconds:
/// brimlight_link_sender ADDRESS BYTES SECONDS. Nobody has to listen, and nobody answers.
int main(int argc, char *argv[])
{
    if (argc != 4)
        return 2;
    // With what Ethernet, IP and UDP put before it every frame has 1000 bytes.
    constexpr double frame = 1000;
    const std::array<char, 958> content{};
    const double rate = std::atof(argv[2]);
    const double seconds = std::atof(argv[3]);

    const int link = ::socket(AF_INET, SOCK_DGRAM, 0);
    const int yes = 1;
    sockaddr_in everybody = {};
    everybody.sin_family = AF_INET;
    everybody.sin_port = htons(9);
    if (::setsockopt(link, SOL_SOCKET, SO_BROADCAST, &yes, sizeof yes) != 0 ||
        ::inet_pton(AF_INET, argv[1], &everybody.sin_addr) != 1)
        return 2;

    const int timer = ::timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC);
    constexpr timespec step{.tv_sec = 0, .tv_nsec = 2'000'000};
    const itimerspec pace{.it_interval = step, .it_value = step};
    if (::timerfd_settime(timer, 0, &pace, nullptr) != 0)
        return 2;

    using Clock = std::chrono::steady_clock;
    const auto begin = Clock::now();
    for (double sent = 0; sent < rate * seconds;) {
        const double due = rate * std::chrono::duration<double>(Clock::now() - begin).count();
        for (; sent < due; sent += frame) {
            if (::sendto(link, content.data(), content.size(), 0,
                         reinterpret_cast<const sockaddr *>(&everybody), sizeof everybody) < 0) {
                std::perror("sendto");
                return 1;
            }
        }
        uint64_t steps = 0;
        if (::read(timer, &steps, sizeof steps) != static_cast<ssize_t>(sizeof steps))
            return 1;
    }
    return 0;
}
