#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace tarvel::qt {

/// An open file of the operating system. No link is followed for the file itself.
class Schreibdatei {
public:
    /// Makes a file that is not there yet.
    static Schreibdatei neu(const std::filesystem::path& pfad);
    /// Opens a file to go on at its end, or after so many bytes if it has more. Makes it if there is none, for this
    /// user alone; on Windows, for whom its folder is: below the user's profile, the user.
    static Schreibdatei weiter(const std::filesystem::path& pfad, std::optional<std::uintmax_t> laenge);

    Schreibdatei(Schreibdatei&& andere) noexcept;
    Schreibdatei& operator=(Schreibdatei&&) = delete;
    ~Schreibdatei() { schliessen(); }

    bool offen() const { return kennung_ != keine; }
    bool schreiben(std::string_view bytes);
    /// Returns once the disk has what was written.
    bool sichern();
    bool schliessen();
    /// No name leads to it any more.
    bool verwaist() const;

private:
    static constexpr std::intptr_t keine = -1;

    explicit Schreibdatei(std::intptr_t kennung) : kennung_(kennung) {}
    /// Number of bytes taken, 0 or below after a failure.
    long stueck_schreiben(std::string_view bytes);
    bool einrichten(std::optional<std::uintmax_t> laenge);

    std::intptr_t kennung_;
};

/// Makes a folder and those on the way to it, for this user alone. True if it is there.
bool eigenen_ordner_anlegen(const std::filesystem::path& ordner);

/// Returns once the disk has the names in the folder, as far as the system offers that.
void ordner_sichern(const std::filesystem::path& ordner);

}  // namespace tarvel::qt
