#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// What the substitute's box and its library say to each other. It is theirs alone: what the real ones say nobody but
/// the vendor knows.
namespace tarvel::simulator::rc_draht {

/// Kinds of a record of the box. Those of events are the codes that the library tells, without their zeros.
enum class art : std::uint8_t { takt = 0, frage = 1, ueberfahrt = 2, verlassen = 3, zustand_1 = 4, aktiv = 6 };

/// Which question it asks stands in the place of the sensor: each has its own status.
enum class frage : std::uint8_t { wer = 0, einstellungen = 1 };

struct satz {
    rc_draht::art art = rc_draht::art::takt;
    std::uint8_t sensor = 0;    ///< 0 to 3
    std::uint32_t stempel = 0;  ///< of the box's clock
};

inline constexpr char antwort_wer = 'W';
inline constexpr char antwort_einstellungen = 'E';
inline constexpr char antwort_aktiv = 'A';

/// A byte with the highest bit begins a record; the stamp follows in fives of seven bits, lowest first, and a sum.
inline constexpr std::size_t satz_bytes = 7;
inline constexpr unsigned anfang = 0x80;
inline constexpr unsigned sieben_bit = 0x7F;

inline unsigned summe(const std::array<std::uint8_t, satz_bytes>& bytes) {
    unsigned alles = 0x2A;
    for (std::size_t i = 0; i + 1 < satz_bytes; ++i) {
        alles = (alles << 1 ^ alles >> 6 ^ bytes.at(i)) & sieben_bit;
    }
    return alles;
}

inline std::string schreiben(const satz& s) {
    std::array<std::uint8_t, satz_bytes> bytes{};
    bytes[0] = static_cast<std::uint8_t>(anfang | static_cast<unsigned>(s.art) << 2 | (s.sensor & 3U));
    std::uint32_t rest = s.stempel;
    for (std::size_t i = 1; i + 1 < satz_bytes; ++i) {
        bytes.at(i) = static_cast<std::uint8_t>(rest & sieben_bit);
        rest >>= 7;
    }
    bytes.back() = static_cast<std::uint8_t>(summe(bytes));
    return {bytes.begin(), bytes.end()};
}

/// Puts records together from single bytes.
class leser {
public:
    std::optional<satz> byte(std::uint8_t neu) {
        if ((neu & anfang) != 0) {
            anzahl_ = 0;
        } else if (anzahl_ == 0 || anzahl_ == satz_bytes) {
            return std::nullopt;  // the rest of a record whose beginning is lost
        }
        bytes_.at(anzahl_++) = neu;
        if (anzahl_ < satz_bytes || bytes_.back() != summe(bytes_)) {
            return std::nullopt;
        }
        satz s{static_cast<art>(bytes_[0] >> 2 & 0x1FU), static_cast<std::uint8_t>(bytes_[0] & 3U), 0};
        for (std::size_t i = satz_bytes - 2; i > 0; --i) {
            s.stempel = s.stempel << 7 | bytes_.at(i);
        }
        return s;
    }

private:
    std::array<std::uint8_t, satz_bytes> bytes_{};
    std::size_t anzahl_ = 0;
};

}  // namespace tarvel::simulator::rc_draht
