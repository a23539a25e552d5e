#pragma once

#include <QStringList>
#include <QWidget>

namespace tarvel::test {

/// The texts of a window that the eye does not get whole: too wide or too high for their widget, or their widget lies
/// partly outside of its parent. Each with its widget's name and what it lacks. What scrolls may be longer than its
/// place.
QStringList beschnittene_texte(const QWidget& fenster);

}  // namespace tarvel::test
