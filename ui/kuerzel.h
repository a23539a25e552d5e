#pragma once

#include <QAbstractButton>
#include <QString>
#include <map>

namespace tarvel::ui {

/// Gives each button of a window a letter that presses it together with the Alt key: the first letter of a word of its
/// caption that no other button has, else any letter of the caption, else none.
class Kuerzel {
public:
    /// The caption as Qt wants it, with "&" before the letter. A button keeps its letter while its caption has it.
    QString vergeben(const QAbstractButton* knopf, const QString& text);
    void freigeben(const QAbstractButton* knopf) { vergeben_.erase(knopf); }

private:
    bool ist_frei(QChar buchstabe, const QAbstractButton* fuer) const;
    qsizetype platz_suchen(const QAbstractButton* knopf, const QString& text) const;

    std::map<const QAbstractButton*, QChar> vergeben_;
};

}  // namespace tarvel::ui
