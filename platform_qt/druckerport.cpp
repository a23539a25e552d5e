#include "platform_qt/druckerport.h"

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <unistd.h>
#endif
#include <utility>

namespace tarvel::qt {
namespace {

constexpr int adresse_max = 0xFFFF;

}  // namespace

#ifndef Q_OS_WIN
Portdatei::~Portdatei() {
    if (kennung_ >= 0) {
        close(kennung_);
    }
}

bool Portdatei::bereit(int adresse) {
    if (kennung_ < 0) {
        kennung_ = open(datei_.c_str(), O_RDWR | O_CLOEXEC);
    }
    return kennung_ >= 0 && adresse >= 0 && adresse <= adresse_max;
}

std::optional<std::uint8_t> Portdatei::lesen(int adresse) {
    std::uint8_t wert = 0;
    if (!bereit(adresse) || pread(kennung_, &wert, 1, adresse) != 1) {
        return std::nullopt;
    }
    return wert;
}

bool Portdatei::schreiben(int adresse, std::uint8_t wert) {
    return bereit(adresse) && pwrite(kennung_, &wert, 1, adresse) == 1;
}

#endif

void Portbibliothek::suchen() {
    for (const char* name : {"inpoutx64", "inpout32"}) {
        if (bibliothek_ == nullptr) {
            bibliothek_ = dienst_.laden(name);
        }
    }
    if (bibliothek_ != nullptr) {
        lesen_ = bibliothek_->finden_als<short(short)>("Inp32");
        schreiben_ = bibliothek_->finden_als<void(short, short)>("Out32");
    }
}

bool Portbibliothek::bereit(int adresse) {
    if (!std::exchange(gesucht_, true)) {
        suchen();
    }
    return lesen_ != nullptr && schreiben_ != nullptr && adresse >= 0 && adresse <= adresse_max;
}

std::string Portbibliothek::weg() const {
    if (bibliothek_ == nullptr) {
        return sonst_ != nullptr ? sonst_->weg() : "inpout32";
    }
    return std::string("inpout32") + (lesen_ == nullptr ? ", Inp32" : "") + (schreiben_ == nullptr ? ", Out32" : "");
}

std::optional<std::uint8_t> Portbibliothek::lesen(int adresse) {
    if (!bereit(adresse)) {
        return bibliothek_ == nullptr && sonst_ != nullptr ? sonst_->lesen(adresse) : std::nullopt;
    }
    return static_cast<std::uint8_t>(lesen_(static_cast<short>(adresse)));
}

bool Portbibliothek::schreiben(int adresse, std::uint8_t wert) {
    if (!bereit(adresse)) {
        return bibliothek_ == nullptr && sonst_ != nullptr && sonst_->schreiben(adresse, wert);
    }
    schreiben_(static_cast<short>(adresse), wert);
    return true;
}

}  // namespace tarvel::qt
