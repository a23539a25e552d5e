#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tarvel {

/// The lines of a race log: words parted by blanks, then "*" and four digits of a check sum that runs on from line to
/// line, so that a line that was changed, moved or lost is noticed. UTF-8, CRLF.
inline constexpr std::uint16_t protokoll_kette_anfang = 0xFFFF;

/// Puts one line after the other together, in a place of its own: it allocates nothing.
class protokollschreiber {
public:
    static constexpr std::size_t zeile_max = 1024;  ///< bytes with sum and line end; what is longer is cut

    /// Goes on behind a line with this sum.
    void fortsetzen(std::uint16_t kette) { kette_ = kette; }

    /// A line that lies so deep in others.
    protokollschreiber& beginnen(int tiefe);
    protokollschreiber& wort(std::string_view wort);
    protokollschreiber& zahl(std::int64_t zahl);
    /// The whole line; good until the next one begins.
    std::string_view fertig();

private:
    void anfuegen(std::string_view text);
    void trennen();

    std::array<char, zeile_max> zeile_{};
    std::size_t laenge_ = 0;
    std::size_t vorspann_ = 0;  ///< signs that no blank follows
    std::uint16_t kette_ = protokoll_kette_anfang;
};

/// Takes the lines of a log apart. What follows a line that is torn or damaged is not read: it may be about anything.
class protokollleser {
public:
    explicit protokollleser(std::string_view inhalt) : rest_(inhalt), bytes_(inhalt.size()) {}

    /// The next line without its sum; none at the end, and from the first damaged line on.
    std::optional<std::string_view> zeile();
    /// All has been read, to the last byte.
    bool vollstaendig() const { return rest_.empty(); }
    /// Bytes of the whole lines so far, and the sum of the last.
    std::size_t gelesen() const { return bytes_ - rest_.size(); }
    std::uint16_t kette() const { return kette_; }

private:
    std::string_view rest_;
    std::size_t bytes_;
    std::uint16_t kette_ = protokoll_kette_anfang;
};

/// A line as it was written, without its sum.
std::string_view ohne_summe(std::string_view geschrieben);

/// One line, taken apart. In one of the head, and one about a decision, `rest` begins with what it is about.
struct protokollsatz {
    int tiefe = 0;                        ///< lies so deep in others
    std::optional<std::int64_t> schritt;  ///< at which it came within the doing above
    std::string_view wort;
    std::string_view rest;

    /// Only for the reader who comes later.
    bool ist_kopfzeile() const { return wort == "#"; }
    bool ist_entscheidung() const { return wort == ">"; }
};
protokollsatz zerlegen(std::string_view zeile);

/// Cuts the next word off a line; empty at its end.
std::string_view naechstes_wort(std::string_view& zeile);
/// The word as a whole number; none if it is not one.
std::optional<std::int64_t> als_zahl(std::string_view wort);

}  // namespace tarvel
