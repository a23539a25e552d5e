#pragma once

#include <cstddef>
#include <vector>

#include "results/ergebnistabelle.h"

namespace tarvel {

/// A table as it was before each correction, so that the corrections can be taken back and made again.
class tabellenverlauf {
public:
    static constexpr std::size_t schritte_max = 50;  ///< the oldest is forgotten then

    /// The table is about to be corrected. What was taken back before is gone.
    void merken(const ergebnistabelle& vorher);
    /// The table is as it was before the last correction, or after the next one. False if there is none.
    bool zuruecknehmen(ergebnistabelle& tabelle);
    bool wiederherstellen(ergebnistabelle& tabelle);
    bool hat_letzte() const { return !vorher_.empty(); }
    bool hat_naechste() const { return !nachher_.empty(); }

    /// Other lines have come into the table: none of its corrections can be taken back.
    void abschliessen();
    /// It stands in a file as it is now.
    void gesichert() { gesichert_ = stand_; }
    bool ungesichert() const { return stand_ != gesichert_; }

private:
    static constexpr long nie = -1;

    std::vector<ergebnistabelle> vorher_;
    std::vector<ergebnistabelle> nachher_;
    long stand_ = 0;      ///< corrections that count
    long gesichert_ = 0;  ///< and that counted when it was saved; `nie` if there is no way back to that
};

}  // namespace tarvel
