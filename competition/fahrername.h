#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/texte.h"

namespace tarvel {

/// Why a name has no place among the participants.
enum class namensmangel {
    keiner,
    leer,
    wie_fueller,  ///< stands for nobody
    vergeben,
    voll,        ///< there is no room for another one
    kein_fahrer  ///< who is to bear it is none
};

/// A name or title as the competition keeps it: without commas, which part the values of its file.
std::string wettkampf_text(std::string_view eingabe);
/// The same for a name, whose length is that of a driver's list.
std::string startlistenname(std::string_view text);
/// May this name, as the above give it, stand in a start list?
namensmangel name_pruefen(std::string_view name, const texte& txt);
/// May it join the others?
namensmangel name_pruefen(std::string_view name, std::span<const std::string> andere, const texte& txt);

}  // namespace tarvel
