#pragma once

#include <QAbstractButton>
#include <QString>
#include <set>
#include <vector>

namespace tarvel::ui {

/// Gives each button of a window a letter that presses it together with the Alt key: the first letter of a word of its
/// caption that no other button has, else any letter of the caption. A button that has had none so far and finds none
/// free gets another's, if that one has a letter to go to. Where a new caption has neither its letter nor a free one,
/// the letter stays and stands behind it, in brackets.
class Kuerzel {
public:
    /// The caption as Qt wants it, with "&" before the letter. A button keeps its letter while its caption has it.
    QString vergeben(QAbstractButton* knopf, const QString& text);
    /// The button has no letter until it is given one again.
    void freigeben(QAbstractButton* knopf);
    /// Deals all of them anew. They go by the captions and the order of the buttons alone, whatever was there before: a
    /// language has the same letters however it was come to.
    void neu_verteilen();

private:
    struct Eintrag {
        QAbstractButton* knopf;
        QString text;
        bool teilt = true;     ///< takes part
        QChar buchstabe = {};  ///< null for none
    };

    Eintrag& eintrag(QAbstractButton* knopf);
    Eintrag* besitzer(QChar buchstabe);
    qsizetype platz_suchen(const Eintrag& eintrag);
    void zuteilen(Eintrag& eintrag);
    /// `auch_anfaenge`: even from who has the first letter of a word of his.
    bool verdraengen(Eintrag& eintrag, bool auch_anfaenge, std::set<QChar>& versucht);

    std::vector<Eintrag> eintraege_;  ///< in the order of the buttons
};

}  // namespace tarvel::ui
