#include "platform_qt/qt_dateisystem.h"

#include <QFileInfo>
#include <QString>
#include <algorithm>
#include <system_error>

#ifdef Q_OS_WIN
#define NOMINMAX  // its macros of that name
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace tarvel::qt {
namespace {

#ifdef Q_OS_WIN

/// A file that this process has made.
class NeueDatei {
public:
    explicit NeueDatei(const std::filesystem::path& pfad)
        : kennung_(CreateFileW(pfad.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    NeueDatei(const NeueDatei&) = delete;
    NeueDatei& operator=(const NeueDatei&) = delete;
    ~NeueDatei() { schliessen(); }

    bool offen() const { return kennung_ != INVALID_HANDLE_VALUE; }
    /// Number of bytes taken, below 0 after a failure.
    long schreiben(std::string_view bytes) {
        constexpr std::size_t stueck_max = 1U << 20U;
        DWORD geschrieben = 0;
        const auto anzahl = static_cast<DWORD>(std::min(bytes.size(), stueck_max));
        return WriteFile(kennung_, bytes.data(), anzahl, &geschrieben, nullptr) != 0 ? static_cast<long>(geschrieben)
                                                                                     : -1;
    }
    bool sichern() { return FlushFileBuffers(kennung_) != 0; }
    bool schliessen() {
        const bool gut = !offen() || CloseHandle(kennung_) != 0;
        kennung_ = INVALID_HANDLE_VALUE;
        return gut;
    }

private:
    HANDLE kennung_;
};

#else

/// A file that this process has made.
class NeueDatei {
public:
    explicit NeueDatei(const std::filesystem::path& pfad)
        : kennung_(open(pfad.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666)) {}
    NeueDatei(const NeueDatei&) = delete;
    NeueDatei& operator=(const NeueDatei&) = delete;
    ~NeueDatei() { schliessen(); }

    bool offen() const { return kennung_ >= 0; }
    /// Number of bytes taken, below 0 after a failure.
    long schreiben(std::string_view bytes) {
        ssize_t geschrieben = 0;
        do {
            geschrieben = write(kennung_, bytes.data(), bytes.size());
        } while (geschrieben < 0 && errno == EINTR);
        return static_cast<long>(geschrieben);
    }
    bool sichern() {
        return fsync(kennung_) == 0 || errno == EINVAL || errno == ENOTSUP;  // not every file system knows how
    }
    bool schliessen() {
        const bool gut = !offen() || close(kennung_) == 0;
        kennung_ = -1;
        return gut;
    }

private:
    int kennung_;
};

#endif

bool alles_schreiben(NeueDatei& datei, std::string_view inhalt) {
    while (!inhalt.empty()) {
        const long geschrieben = datei.schreiben(inhalt);
        if (geschrieben <= 0) {
            return false;
        }
        inhalt.remove_prefix(static_cast<std::size_t>(geschrieben));
    }
    return datei.sichern() && datei.schliessen();
}

}  // namespace

bool QtDateisystem::neue_datei(const std::filesystem::path& pfad, std::string_view inhalt) const {
    NeueDatei datei(pfad);
    if (!datei.offen()) {
        return false;
    }
    if (!alles_schreiben(datei, inhalt)) {
        datei.schliessen();
        std::error_code egal;
        std::filesystem::remove(pfad, egal);
        return false;
    }
    return true;
}

bool QtDateisystem::ist_verweis(const std::filesystem::path& pfad) const {
    const QFileInfo eintrag(QString::fromStdU16String(pfad.u16string()));
    return eintrag.isSymLink() || eintrag.isJunction();
}

}  // namespace tarvel::qt
