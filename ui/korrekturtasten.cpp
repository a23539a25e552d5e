#include "ui/korrekturtasten.h"

#include <QSet>
#include <QShortcut>
#include <utility>

namespace tarvel::ui {

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
}

}  // namespace tarvel::ui
