#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <thread>
#include <utility>

#include "tools/simulator/anschluss.h"

namespace tarvel::simulator {
namespace {

namespace fs = std::filesystem;

constexpr int wartezeit_getrennt_ms = 10;

speed_t geschwindigkeit(int baud) {
    constexpr std::array<std::pair<int, speed_t>, 6> stufen{
        {{4800, B4800}, {9600, B9600}, {19200, B19200}, {38400, B38400}, {57600, B57600}, {115200, B115200}}};
    for (const auto& [zahl, stufe] : stufen) {
        if (zahl == baud) {
            return stufe;
        }
    }
    return B0;
}

/// No echo and no line editing, and every byte as it is.
bool roh_einstellen(int fd, int baud) {
    termios t{};
    if (tcgetattr(fd, &t) != 0) {
        return false;
    }
    cfmakeraw(&t);
    t.c_cflag |= CLOCAL | CREAD;
    cfsetispeed(&t, geschwindigkeit(baud));
    cfsetospeed(&t, geschwindigkeit(baud));
    return tcsetattr(fd, TCSANOW, &t) == 0;
}

sigset_t endsignale() {
    sigset_t menge;
    sigemptyset(&menge);
    sigaddset(&menge, SIGINT);
    sigaddset(&menge, SIGTERM);
    sigaddset(&menge, SIGHUP);
    return menge;
}

}  // namespace

struct anschluss::leitung {
    int fd = -1;
    bool pseudo = false;
    fs::path verweis;

    leitung() = default;
    leitung(const leitung&) = delete;
    leitung& operator=(const leitung&) = delete;
    ~leitung() {
        if (!verweis.empty()) {
            std::error_code fehler;
            fs::remove(verweis, fehler);
        }
        if (fd >= 0) {
            close(fd);
        }
    }

    std::string port_oeffnen(const anschluss_ort& ort);
    std::string terminal_oeffnen(const anschluss_ort& ort);
    std::string verweisen(const fs::path& pfad, const char* ziel);
};

std::string anschluss::leitung::port_oeffnen(const anschluss_ort& ort) {
    fd = open(ort.port.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0 || !roh_einstellen(fd, ort.baud)) {
        return ort.port + ": " + std::strerror(errno);
    }
    return {};
}

std::string anschluss::leitung::terminal_oeffnen(const anschluss_ort& ort) {
    pseudo = true;
    const fs::path pfad = fs::path(ort.ordner) / "Anschluesse" / ("COM" + std::to_string(ort.com));
    // A link that leads nowhere was left behind by a crash. The new terminal may take the number of the old one, so
    // this is asked before there is one.
    std::error_code fehler;
    if (fs::exists(pfad, fehler)) {
        return pfad.string() + " ist schon vergeben. Läuft dort kein Simulator, bitte die Datei löschen.";
    }
    fd = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    const char* ziel = nullptr;
    if (fd < 0 || grantpt(fd) != 0 || unlockpt(fd) != 0 || (ziel = ptsname(fd)) == nullptr) {
        return std::string("Kein Pseudo-Terminal: ") + std::strerror(errno);
    }
    // Opened and closed once, the other side counts as closed until the program opens it.
    const int andere = open(ziel, O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (andere < 0 || !roh_einstellen(andere, ort.baud)) {
        return std::string(ziel) + ": " + std::strerror(errno);
    }
    close(andere);
    return verweisen(pfad, ziel);
}

std::string anschluss::leitung::verweisen(const fs::path& pfad, const char* ziel) {
    std::error_code fehler;
    fs::create_directories(pfad.parent_path(), fehler);
    fs::remove(pfad, fehler);
    fs::create_symlink(ziel, pfad, fehler);
    if (fehler) {
        return pfad.string() + ": " + fehler.message();
    }
    verweis = pfad;
    return {};
}

anschluss::anschluss(anschluss_ort ort) : ort_(std::move(ort)) {}
anschluss::~anschluss() = default;

std::string anschluss::oeffnen() {
    if (geschwindigkeit(ort_.baud) == B0) {
        return std::to_string(ort_.baud) + " Baud kann der Anschluss nicht.";
    }
    leitung_ = std::make_unique<leitung>();
    std::string fehler = ort_.port.empty() ? leitung_->terminal_oeffnen(ort_) : leitung_->port_oeffnen(ort_);
    if (!fehler.empty()) {
        leitung_.reset();
    }
    return fehler;
}

void anschluss::abziehen() {
    leitung_.reset();
}

bool anschluss::verbunden() const {
    if (!leitung_) {
        return false;
    }
    pollfd p{leitung_->fd, POLLIN, 0};
    poll(&p, 1, 0);
    return (p.revents & (POLLHUP | POLLERR | POLLNVAL)) == 0;
}

std::string anschluss::lesen(int wartezeit_ms) {
    if (!verbunden()) {
        // A closed line is always ready, so that waiting for it would be no waiting.
        std::this_thread::sleep_for(std::chrono::milliseconds(wartezeit_getrennt_ms));
        return {};
    }
    pollfd p{leitung_->fd, POLLIN, 0};
    if (poll(&p, 1, wartezeit_ms) <= 0) {
        return {};
    }
    std::array<char, 4096> puffer{};
    const ssize_t anzahl = read(leitung_->fd, puffer.data(), puffer.size());
    return anzahl > 0 ? std::string(puffer.data(), static_cast<std::size_t>(anzahl)) : std::string();
}

void anschluss::schreiben(std::string_view bytes) {
    while (!bytes.empty() && verbunden()) {
        const ssize_t anzahl = write(leitung_->fd, bytes.data(), bytes.size());
        if (anzahl <= 0) {
            return;
        }
        bytes.remove_prefix(static_cast<std::size_t>(anzahl));
    }
}

std::string anschluss::name() const {
    return leitung_ && leitung_->pseudo ? leitung_->verweis.string() : ort_.port;
}

bool ende_gewuenscht() {
    // Blocked signals stay pending, where they can be asked for without a handler.
    const sigset_t menge = endsignale();
    pthread_sigmask(SIG_BLOCK, &menge, nullptr);
    sigset_t wartend;
    sigemptyset(&wartend);
    sigpending(&wartend);
    return sigismember(&wartend, SIGINT) == 1 || sigismember(&wartend, SIGTERM) == 1 ||
           sigismember(&wartend, SIGHUP) == 1;
}

}  // namespace tarvel::simulator
