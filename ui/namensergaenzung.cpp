#include "ui/namensergaenzung.h"

#include <QAbstractItemView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStringList>
#include <QTimer>
#include <string>

namespace tarvel::ui {

void Namensergaenzung::anbieten(QComboBox& feld, const auswahl& element) {
    if (element.vorschlagen) {
        feld.setCompleter(new Namensergaenzung(feld, element));
    }
}

Namensergaenzung::Namensergaenzung(QComboBox& feld, const auswahl& element)
    : QCompleter(&feld), feld_(feld), element_(element), namen_(new QStringListModel(this)) {
    setModel(namen_);
    setCompletionMode(QCompleter::PopupCompletion);
    setFilterMode(Qt::MatchContains);  // lets all of them through: the control has chosen
    setCaseSensitivity(Qt::CaseInsensitive);
    connect(feld.lineEdit(), &QLineEdit::textEdited, this, [this](const QString& getippt) { vorschlagen(getippt); });
    // A choice looks for what was chosen among its own entries, and empties its field where it is none of them.
    connect(this, qOverload<const QString&>(&QCompleter::activated), &feld, &QComboBox::setEditText);
}

void Namensergaenzung::vorschlagen(const QString& getippt) {
    QStringList liste;
    for (const std::string& name : element_.vorschlagen(getippt.toStdString())) {
        liste << QString::fromStdString(name);
    }
    namen_->setStringList(liste);
    QTimer::singleShot(0, this, [this] { einzigen_markieren(); });  // once they are on the screen
}

void Namensergaenzung::einzigen_markieren() const {
    QItemSelectionModel* wahl = popup()->selectionModel();
    if (popup()->isVisible() && completionCount() == 1 && !popup()->currentIndex().isValid()) {
        const QSignalBlocker still(wahl);
        wahl->select(completionModel()->index(0, completionColumn()), QItemSelectionModel::ClearAndSelect);
        popup()->viewport()->update();
    }
}

bool Namensergaenzung::eventFilter(QObject* ziel, QEvent* ereignis) {
    // The list is made when it is first asked for, which comes here again.
    if (ereignis->type() == QEvent::KeyPress && ziel == popup() && !popup()->currentIndex().isValid()) {
        const int taste = static_cast<QKeyEvent*>(ereignis)->key();
        const bool nehmen = taste == Qt::Key_Return || taste == Qt::Key_Enter || taste == Qt::Key_Tab;
        {
            const QSignalBlocker still(popup()->selectionModel());
            popup()->selectionModel()->clearSelection();  // the keys see a list in which nothing is chosen
        }
        if (nehmen && completionCount() == 1) {
            const QModelIndex einziger = completionModel()->index(0, completionColumn());
            popup()->hide();
            feld_.setEditText(einziger.data().toString());  // and the key goes on to the field
        }
    }
    return QCompleter::eventFilter(ziel, ereignis);
}

}  // namespace tarvel::ui
