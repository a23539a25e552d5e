#pragma once

#include <QComboBox>
#include <QCompleter>
#include <QStringListModel>

#include "core/steuerelemente.h"

namespace tarvel::ui {

/// Names below a choice while one is typed. An arrow key or the mouse chooses one of them; if one alone is left, it is
/// marked, and Enter or Tab takes it. With Escape, or with several that nobody has chosen from, what is typed stays.
class Namensergaenzung final : public QCompleter {
public:
    /// Does nothing for a choice that proposes nothing.
    static void anbieten(QComboBox& feld, const auswahl& element);

protected:
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    Namensergaenzung(QComboBox& feld, const auswahl& element);
    void vorschlagen(const QString& getippt);
    /// Without choosing it: the text in the field is what was typed.
    void einzigen_markieren() const;

    QComboBox& feld_;
    const auswahl& element_;
    QStringListModel* namen_;
};

}  // namespace tarvel::ui
