#pragma once

#include <QStringList>
#include <QWidget>

namespace tarvel::test {

/// What the race window shows lower than a 45th of its height: nobody reads that from the other side of the track.
QStringList zu_niedrige_schriften(const QWidget& rennfenster);

}  // namespace tarvel::test
