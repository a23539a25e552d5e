#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "competition/fahrername.h"
#include "core/namensliste.h"
#include "core/texte.h"
#include "platform/zufall.h"

namespace tarvel {

/// Names with their pictures, each name once. Rows count from 0; one that does not exist changes nothing.
class teilnehmerliste {
public:
    teilnehmerliste(const texte& txt, std::size_t max) : txt_(txt), max_(max) {}

    const std::vector<listeneintrag>& eintraege() const { return eintraege_; }
    std::size_t anzahl() const { return eintraege_.size(); }
    std::optional<std::size_t> zeile_von(std::string_view name) const;

    /// What speaks against the name, which must be as `startlistenname` makes it.
    namensmangel pruefen(std::string_view name) const;
    /// Appends the entry under its name without commas, unless something speaks against it.
    namensmangel hinzufuegen(listeneintrag neu);
    void entfernen(std::size_t zeile);
    void leeren() { eintraege_.clear(); }
    /// Exchanges the row with the next one.
    void mit_naechster_tauschen(std::size_t zeile);
    /// All orders are equally likely.
    void mischen(plattform::zufall& zufall);
    void inhalt_tauschen(teilnehmerliste& andere);
    void bild_setzen(std::size_t zeile, std::string_view stamm);
    /// The pictures of a list with the same rows.
    void bilder_von(const namensliste& andere);
    /// As a list of drivers that can be saved.
    namensliste als_namensliste(const namensliste::art& art) const;

private:
    const texte& txt_;
    std::size_t max_;
    std::vector<listeneintrag> eintraege_;
};

}  // namespace tarvel
