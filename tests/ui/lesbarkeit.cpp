#include "tests/ui/lesbarkeit.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

#include "ui/ampelfeld.h"
#include "ui/tankbalken.h"
#include "ui/textanzeige.h"

namespace tarvel::test {
namespace {

constexpr int nichts_zu_lesen = 10000;

/// Whatever is to be read of the widget is at least so high.
int schrifthoehe(const QWidget& widget) {
    if (const auto* text = dynamic_cast<const ui::TextAnzeige*>(&widget)) {
        return text->text().isEmpty() ? nichts_zu_lesen : text->schriftPx();
    }
    if (dynamic_cast<const ui::Ampelfeld*>(&widget) != nullptr ||
        dynamic_cast<const ui::Tankbalken*>(&widget) != nullptr || qobject_cast<const QCheckBox*>(&widget) != nullptr) {
        return widget.height();
    }
    if (const auto* text = qobject_cast<const QLabel*>(&widget)) {
        return text->text().isEmpty() ? nichts_zu_lesen : text->font().pixelSize();
    }
    const bool mit_schrift = qobject_cast<const QListView*>(&widget) != nullptr ||
                             qobject_cast<const QLineEdit*>(&widget) != nullptr ||
                             qobject_cast<const QPushButton*>(&widget) != nullptr;
    return mit_schrift ? widget.font().pixelSize() : nichts_zu_lesen;
}

}  // namespace

QStringList zu_niedrige_schriften(const QWidget& fenster, int hoehe_des_rennens) {
    constexpr int teil = 45;
    QStringList alle;
    for (const QWidget* widget : fenster.findChildren<QWidget*>()) {
        const int hoehe = schrifthoehe(*widget);
        const bool zaehlt_im_rennen = widget->objectName() != "bahn1.werbe_label";
        if (zaehlt_im_rennen && widget->window() == &fenster && widget->isVisible() && !widget->size().isEmpty() &&
            teil * hoehe < hoehe_des_rennens) {
            alle << QString("%1 is %2 high in %3").arg(widget->objectName()).arg(hoehe).arg(hoehe_des_rennens);
        }
    }
    return alle;
}

}  // namespace tarvel::test
