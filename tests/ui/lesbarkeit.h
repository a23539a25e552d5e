#pragma once

#include <QStringList>
#include <QWidget>

namespace tarvel::test {

/// What the race window, or its light, shows lower than a 45th of the height of the race window: nobody reads that from
/// the other side of the track.
QStringList zu_niedrige_schriften(const QWidget& fenster, int hoehe_des_rennens);

}  // namespace tarvel::test
