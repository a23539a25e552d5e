#include <windows.h>

#include <array>
#include <chrono>
#include <thread>
#include <utility>

#include "tools/simulator/anschluss.h"

namespace tarvel::simulator {

/// One end of a virtual null-modem pair; this system has no pseudo-terminals.
struct anschluss::leitung {
    HANDLE h = INVALID_HANDLE_VALUE;

    leitung() = default;
    leitung(const leitung&) = delete;
    leitung& operator=(const leitung&) = delete;
    ~leitung() {
        if (h != INVALID_HANDLE_VALUE) {
            CloseHandle(h);
        }
    }

    bool einstellen(int baud) const {
        DCB dcb{};
        dcb.DCBlength = sizeof dcb;
        dcb.BaudRate = static_cast<DWORD>(baud);
        dcb.ByteSize = 8;
        dcb.fBinary = TRUE;
        dcb.Parity = NOPARITY;
        dcb.StopBits = ONESTOPBIT;
        COMMTIMEOUTS zeiten{};
        // Reads return with what is there, or wait a millisecond for the first byte.
        zeiten.ReadIntervalTimeout = MAXDWORD;
        zeiten.ReadTotalTimeoutMultiplier = MAXDWORD;
        zeiten.ReadTotalTimeoutConstant = 1;
        zeiten.WriteTotalTimeoutConstant = 50;
        return SetCommState(h, &dcb) != 0 && SetCommTimeouts(h, &zeiten) != 0;
    }
};

anschluss::anschluss(anschluss_ort ort) : ort_(std::move(ort)) {}
anschluss::~anschluss() = default;

std::string anschluss::oeffnen() {
    if (ort_.port.empty()) {
        return "Unter Windows bitte mit --anschluss einen COM-Port nennen, etwa COM5.";
    }
    leitung_ = std::make_unique<leitung>();
    leitung_->h = CreateFileA(("\\\\.\\" + ort_.port).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                              0, nullptr);
    if (leitung_->h == INVALID_HANDLE_VALUE || !leitung_->einstellen(ort_.baud)) {
        leitung_.reset();
        return ort_.port + " kann nicht geöffnet werden.";
    }
    return {};
}

void anschluss::abziehen() {
    leitung_.reset();
}

bool anschluss::verbunden() const {
    return leitung_ != nullptr;
}

std::string anschluss::lesen(int wartezeit_ms) {
    if (!leitung_) {
        std::this_thread::sleep_for(std::chrono::milliseconds(wartezeit_ms));
        return {};
    }
    std::array<char, 4096> puffer{};
    DWORD anzahl = 0;
    if (ReadFile(leitung_->h, puffer.data(), static_cast<DWORD>(puffer.size()), &anzahl, nullptr) == 0) {
        std::this_thread::sleep_for(std::chrono::milliseconds(wartezeit_ms));
        return {};
    }
    return std::string(puffer.data(), anzahl);
}

void anschluss::schreiben(std::string_view bytes) {
    DWORD anzahl = 0;
    if (leitung_) {
        WriteFile(leitung_->h, bytes.data(), static_cast<DWORD>(bytes.size()), &anzahl, nullptr);
    }
}

std::string anschluss::name() const {
    return ort_.port;
}

bool ende_gewuenscht() {
    return false;
}  // there is no link to be removed: the console may end the program

}  // namespace tarvel::simulator
