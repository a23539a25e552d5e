#include "platform_qt/schreibdatei.h"

#include <algorithm>
#include <system_error>
#include <utility>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX  // its macros of that name
#endif
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace fs = std::filesystem;

namespace tarvel::qt {

Schreibdatei::Schreibdatei(Schreibdatei&& andere) noexcept : kennung_(std::exchange(andere.kennung_, keine)) {}

bool Schreibdatei::schreiben(std::string_view bytes) {
    while (!bytes.empty()) {
        const long geschrieben = stueck_schreiben(bytes);
        if (geschrieben <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(geschrieben));
    }
    return true;
}

Schreibdatei Schreibdatei::weiter(const fs::path& pfad, std::optional<std::uintmax_t> laenge) {
#ifdef _WIN32
    Schreibdatei datei(reinterpret_cast<std::intptr_t>(
        CreateFileW(pfad.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr)));
#else
    // without waiting: for a pipe there may never be anybody at the other end
    constexpr int art = O_WRONLY | O_CREAT | O_APPEND | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK;
    Schreibdatei datei(open(pfad.c_str(), art, 0600));
#endif
    if (datei.offen() && !datei.einrichten(laenge)) {
        datei.schliessen();
    }
    return datei;
}

bool eigenen_ordner_anlegen(const fs::path& ordner) {
    std::error_code fehler;
    if (ordner.empty() || fs::is_directory(ordner, fehler)) {
        return true;
    }
    if (!ordner.has_relative_path() || !eigenen_ordner_anlegen(ordner.parent_path())) {
        return false;
    }
#ifdef _WIN32
    fs::create_directory(ordner, fehler);
#else
    mkdir(ordner.c_str(), 0700);
    ordner_sichern(ordner.parent_path());
#endif
    return fs::is_directory(ordner, fehler);
}

#ifdef _WIN32

namespace {

HANDLE als_handle(std::intptr_t kennung) {
    return reinterpret_cast<HANDLE>(kennung);
}

}  // namespace

Schreibdatei Schreibdatei::neu(const fs::path& pfad) {
    return Schreibdatei(reinterpret_cast<std::intptr_t>(
        CreateFileW(pfad.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr)));
}

bool Schreibdatei::einrichten(std::optional<std::uintmax_t> laenge) {
    HANDLE datei = als_handle(kennung_);
    FILE_ATTRIBUTE_TAG_INFO art{};
    LARGE_INTEGER groesse{};
    if (GetFileType(datei) != FILE_TYPE_DISK || GetFileSizeEx(datei, &groesse) == 0 ||
        GetFileInformationByHandleEx(datei, FileAttributeTagInfo, &art, sizeof art) == 0) {
        return false;
    }
    // other marks of that kind are the system's: files that are kept in a cloud, or compressed
    const bool verweis = (art.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
                         (art.ReparseTag == IO_REPARSE_TAG_SYMLINK || art.ReparseTag == IO_REPARSE_TAG_MOUNT_POINT);
    const bool kuerzer = laenge && *laenge < static_cast<std::uintmax_t>(groesse.QuadPart);
    if (kuerzer) {
        groesse.QuadPart = static_cast<LONGLONG>(*laenge);
    }
    return !verweis && SetFilePointerEx(datei, groesse, nullptr, FILE_BEGIN) != 0 &&
           (!kuerzer || SetEndOfFile(datei) != 0);
}

long Schreibdatei::stueck_schreiben(std::string_view bytes) {
    constexpr std::size_t stueck_max = 1U << 20U;
    DWORD geschrieben = 0;
    const auto anzahl = static_cast<DWORD>(std::min(bytes.size(), stueck_max));
    return WriteFile(als_handle(kennung_), bytes.data(), anzahl, &geschrieben, nullptr) != 0
               ? static_cast<long>(geschrieben)
               : -1;
}

bool Schreibdatei::sichern() {
    return FlushFileBuffers(als_handle(kennung_)) != 0;
}

bool Schreibdatei::schliessen() {
    const std::intptr_t kennung = std::exchange(kennung_, keine);
    return kennung == keine || CloseHandle(als_handle(kennung)) != 0;
}

bool Schreibdatei::verwaist() const {
    return false;  // nobody can delete it
}

void ordner_sichern(const fs::path& /*ordner*/) {}

#else

namespace {

int als_nummer(std::intptr_t kennung) {
    return static_cast<int>(kennung);
}

/// Not every file system knows how.
bool auf_platte(int nummer) {
    int ergebnis = 0;
    do {
        ergebnis = fdatasync(nummer);
    } while (ergebnis != 0 && errno == EINTR);
    return ergebnis == 0 || errno == EINVAL || errno == ENOTSUP;
}

}  // namespace

Schreibdatei Schreibdatei::neu(const fs::path& pfad) {
    return Schreibdatei(open(pfad.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666));
}

bool Schreibdatei::einrichten(std::optional<std::uintmax_t> laenge) {
    const int nummer = als_nummer(kennung_);
    struct stat was {};
    if (fstat(nummer, &was) != 0 || !S_ISREG(was.st_mode)) {
        return false;
    }
    fchmod(nummer, S_IRUSR | S_IWUSR);  // a copy of it may have been for all; some file systems know of no users
    const bool kuerzer = laenge && *laenge < static_cast<std::uintmax_t>(was.st_size);
    return !kuerzer || ftruncate(nummer, static_cast<off_t>(*laenge)) == 0;
}

long Schreibdatei::stueck_schreiben(std::string_view bytes) {
    ssize_t geschrieben = 0;
    do {
        geschrieben = write(als_nummer(kennung_), bytes.data(), bytes.size());
    } while (geschrieben < 0 && errno == EINTR);
    return static_cast<long>(geschrieben);
}

bool Schreibdatei::sichern() {
    return auf_platte(als_nummer(kennung_));
}

bool Schreibdatei::schliessen() {
    const std::intptr_t kennung = std::exchange(kennung_, keine);
    return kennung == keine || close(als_nummer(kennung)) == 0;
}

bool Schreibdatei::verwaist() const {
    struct stat was {};
    return fstat(als_nummer(kennung_), &was) != 0 || was.st_nlink == 0;
}

void ordner_sichern(const fs::path& ordner) {
    const int nummer = open(ordner.empty() ? "." : ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (nummer >= 0) {
        fsync(nummer);
        close(nummer);
    }
}

#endif

}  // namespace tarvel::qt
