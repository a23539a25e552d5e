#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dateisystem.h"

namespace tarvel {

/// No sign in the name that some file system of the program's users refuses.
bool dateiname_zulaessig(std::string_view name);
/// The text as a name that every file system takes: other signs become "_".
std::string als_dateiname(std::string_view text);

/// A file that can be read to its end: no device, no pipe, and not larger than this.
bool ist_lesbar(const std::filesystem::path& datei, std::uintmax_t bytes_max);
inline constexpr std::uintmax_t bild_bytes_max = std::uintmax_t{64} * 1024 * 1024;  ///< of a picture

/// The files below the program folder. Names are relative to it, with `\` and `/` alike; a name that leads out of the
/// folder names no file. No call throws.
class dateien {
public:
    dateien(std::filesystem::path programmordner, const plattform::dateisystem& system)
        : ordner_(std::move(programmordner)), system_(&system) {}
    /// For tools: as far as the standard library goes.
    explicit dateien(std::filesystem::path programmordner);

    /// Nothing in the folder is changed by these files: each try fails.
    void nur_lesen() { nur_lesen_ = true; }

    /// From here on the language files come from this folder in place of `language`.
    void sprache_aus(std::string ordner) { sprachordner_ = std::move(ordner); }
    /// Where a language file, named as one of the folder `language`, is read.
    std::string sprachdatei(std::string_view name) const;

    /// Place of the file on the disk; empty if the name leads out of the program folder.
    std::filesystem::path pfad(std::string_view name) const;

    /// The file's lines as UTF-8, without line ends; at most `zeilen_max` of them, each cut at `bytes_max` bytes.
    /// None if the file cannot be read.
    std::optional<std::vector<std::string>> zeilen_lesen(std::string_view name, std::size_t zeilen_max,
                                                         std::size_t bytes_max = 4000) const;

    /// Writes Windows-1252 lines with CRLF, creating folders as needed. Either the whole new file stands afterwards, or
    /// the result is false and the old one is untouched.
    bool zeilen_schreiben(std::string_view name, const std::vector<std::string>& zeilen) const;

    /// There is a file of that name.
    bool gibt_es(std::string_view name) const;

    /// These report success; a failure changes nothing.
    bool ordner_anlegen(std::string_view name) const;
    bool umbenennen(std::string_view alt, std::string_view neu) const;
    bool kopieren(std::string_view alt, std::string_view neu) const;
    bool loeschen(std::string_view name) const;
    /// Moves the file into a folder, under a name that is free there; the time of its last change is now.
    bool wegraeumen(std::string_view name, std::string_view ordner) const;
    /// Copies a file from anywhere on the machine, of at most 16 MB; the old file of the name is whole until then.
    bool hereinkopieren(const std::filesystem::path& quelle, std::string_view neu) const;

    /// Names (without folder) of the files in `ordner` that begin and end as given, in upper or lower case, in the
    /// order of their names.
    std::vector<std::string> auflisten(std::string_view ordner, std::string_view anfang, std::string_view ende) const;

    /// Neither the folder nor one on the way to it is a link: what is tidied up in it is the program's own.
    bool ist_eigener_ordner(std::string_view ordner) const;
    /// Deletes the files of the folder whose last change is longer ago.
    void aeltere_loeschen(std::string_view ordner, std::chrono::days als) const;
    /// Deletes what writers have left in the folder that did not come to their end.
    void reste_loeschen(std::string_view ordner) const;

private:
    /// The same for a file or folder that is to be changed; empty also if none may be.
    std::filesystem::path schreibpfad(std::string_view name) const {
        return nur_lesen_ ? std::filesystem::path() : pfad(name);
    }
    /// Writes beside the file and renames: either the whole new file stands afterwards, or the old one is untouched.
    bool ersetzen(const std::filesystem::path& datei, std::string_view inhalt) const;

    std::filesystem::path ordner_;
    const plattform::dateisystem* system_;
    bool nur_lesen_ = false;
    std::string sprachordner_;  ///< empty: as the names say
};

}  // namespace tarvel
