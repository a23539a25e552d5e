#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Text helpers. Text in memory is UTF-8; lengths count characters. Files are Windows-1252.
namespace tarvel {

std::size_t laenge(std::string_view text);
/// The first `anzahl` characters.
std::string_view links(std::string_view text, std::size_t anzahl);
/// The last `anzahl` characters.
std::string_view rechts(std::string_view text, std::size_t anzahl);
/// `anzahl` characters from the one with number `ab`, the first being 1.
std::string_view mitte(std::string_view text, std::size_t ab, std::size_t anzahl);

/// With blanks behind it up to `breite` characters; what is longer stays.
std::string aufgefuellt(std::string_view text, std::size_t breite);

/// With blanks at which no line breaks.
std::string unteilbar(std::string_view text);

/// Without blanks and tabs at both ends.
std::string_view gekuerzt(std::string_view text);

/// Optional sign, digits, "." as decimal mark; stops at the first other character. Leading blanks are skipped.
/// A text without digits gives 0.
double zahl_lesen(std::string_view text);

/// `zahl_lesen`, cut to its whole part and held within the given limits.
std::int64_t ganzzahl_lesen(std::string_view text, std::int64_t min, std::int64_t max);

/// The number without needless zeros, with at most six decimals behind `komma`.
std::string zahl_text(double zahl, char komma);

/// The number with two decimals behind `komma`, at most 1e15 in size.
std::string zahl_fest(double zahl, char komma);

/// A blank in place of the plus sign: " 7", "-7".
std::string zahl_mit_platz(std::int64_t zahl);

/// Whole number with leading zeros; of a longer number only its last digits: 7 with 2 digits is "07", 123 is "23".
/// Negative numbers count as 0.
std::string ziffern(std::int64_t zahl, int stellen);

/// Replaces each "," in `text` by "."; the text is changed in place.
void werte_pruefen2(std::string& text);

/// Characters outside Windows-1252 become "?", and so does broken UTF-8. The five bytes without a character stand for
/// the control characters of the same number, so that no byte is lost on the way.
std::string nach_1252(std::string_view utf8);
std::string von_1252(std::string_view bytes);

/// The first Windows-1252 value that prints something.
inline constexpr int erstes_druckbares = 32;

/// Windows-1252 value of a text of exactly one character; none if there is no such value.
std::optional<int> ansi_code(std::string_view zeichen);
/// The character of a Windows-1252 value from 0 to 255.
std::string ansi_zeichen(int code);

}  // namespace tarvel
