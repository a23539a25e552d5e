#pragma once

#include <QAbstractButton>
#include <QString>
#include <map>
#include <set>

namespace tarvel::ui {

/// Gives each button of a window a letter that presses it together with the Alt key: the first letter of a word of its
/// caption that no other button has, else any letter of the caption. A button that has had none so far and finds none
/// free gets another's, if that one has a letter to go to.
class Kuerzel {
public:
    /// The caption as Qt wants it, with "&" before the letter. A button keeps its letter while its caption has it.
    QString vergeben(QAbstractButton* knopf, const QString& text);
    void freigeben(QAbstractButton* knopf) { knoepfe_.erase(knopf); }

private:
    struct Eintrag {
        QString text;
        QChar buchstabe;  ///< null for none
    };

    QAbstractButton* besitzer(QChar buchstabe) const;
    qsizetype platz_suchen(QAbstractButton* knopf, const Eintrag& eintrag) const;
    /// `auch_anfaenge`: even from who has the first letter of a word of his.
    bool verdraengen(QAbstractButton* knopf, bool auch_anfaenge, std::set<QChar>& versucht);

    std::map<QAbstractButton*, Eintrag> knoepfe_;
};

}  // namespace tarvel::ui
