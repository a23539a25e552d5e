#include "ui/korrekturtasten.h"

#include <QEvent>
#include <QPushButton>
#include <QSet>
#include <QShortcut>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace tarvel::ui {
namespace {

/// A button that is disabled under the keyboard hands it on to its partner, not to whatever stands next.
class Tastenerbe final : public QObject {
public:
    Tastenerbe(QPushButton* knopf, QPushButton* partner) : QObject(knopf), knopf_(knopf), partner_(partner) {
        knopf->installEventFilter(this);
    }

    bool eventFilter(QObject* /*wer*/, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::FocusOut && !knopf_->isEnabled()) {
            QTimer::singleShot(0, partner_, [this] {  // it is enabled within the same frame
                if (partner_->isEnabled()) {
                    partner_->setFocus(Qt::OtherFocusReason);
                }
            });
        }
        return false;
    }

private:
    QPushButton* knopf_;
    QPushButton* partner_;
};

QPushButton* knopf_von(const QWidget* fenster, const QString& name) {
    const QList<QPushButton*> alle = fenster->findChildren<QPushButton*>();
    return *std::find_if(alle.begin(), alle.end(),
                         [&](const QPushButton* knopf) { return knopf->objectName().endsWith(name); });
}

}  // namespace

void korrekturtasten(QWidget* fenster, befehl& zurueck, befehl& wieder) {
    for (const auto& [tasten, knopf] :
         {std::pair(QKeySequence::Undo, &zurueck), std::pair(QKeySequence::Redo, &wieder)}) {
        QList<QKeySequence> folgen = QKeySequence::keyBindings(tasten);
        folgen.append(tasten == QKeySequence::Undo ? QKeySequence(Qt::CTRL | Qt::Key_Z)
                                                   : QKeySequence(Qt::CTRL | Qt::Key_Y));
        for (const QKeySequence& folge : QSet<QKeySequence>(folgen.begin(), folgen.end())) {
            auto* kuerzel = new QShortcut(folge, fenster);
            QObject::connect(kuerzel, &QShortcut::activated, fenster, [k = knopf] { k->klicken(); });
        }
    }
    QPushButton* links = knopf_von(fenster, ".Command_zurueck");
    QPushButton* rechts = knopf_von(fenster, ".Command_wieder");
    new Tastenerbe(links, rechts);
    new Tastenerbe(rechts, links);
}

}  // namespace tarvel::ui
