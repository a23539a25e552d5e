#pragma once

#include <QWidget>
#include <vector>

#include "tools/fensterbilder/buehne.h"

namespace tarvel {

/// A window in a given state.
struct szeneneintrag {
    const char* name;
    QWidget& (*zeigen)(buehne&);
    bool eigene_groesse = false;  ///< the window is as large as it wants to be
};

/// The race and its lights.
const std::vector<szeneneintrag>& rennszenen();
/// What its lanes are in, and its pauses.
const std::vector<szeneneintrag>& lagenszenen();
/// The evening of many races.
const std::vector<szeneneintrag>& abendszenen();
/// What follows a race: its result, certificates, best times, the race once more.
const std::vector<szeneneintrag>& auswertungsszenen();
/// The viewer of result files.
const std::vector<szeneneintrag>& ergebnisszenen();
/// Long names, empty lists, questions: what a club brings that no example has.
const std::vector<szeneneintrag>& randszenen();
/// All other windows.
const std::vector<szeneneintrag>& fensterszenen();

}  // namespace tarvel
