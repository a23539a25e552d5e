#pragma once

#include <QStringList>
#include <QWidget>

namespace tarvel::test {

/// Widgets of a visible window that lie on top of one another, though each is to be read or pressed.
QStringList ueberdeckte_widgets(const QWidget& fenster);

}  // namespace tarvel::test
