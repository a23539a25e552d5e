#include "ui/kuerzel.h"

#include <algorithm>

namespace tarvel::ui {
namespace {

/// Letters that every keyboard has.
bool taugt(QChar zeichen) {
    const char16_t klein = zeichen.toLower().unicode();
    return klein >= u'a' && klein <= u'z';
}

bool beginnt_ein_wort(const QString& text, QChar buchstabe) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].toLower() == buchstabe && (i == 0 || !text[i - 1].isLetter())) {
            return true;
        }
    }
    return false;
}

QString beschriftung(const QString& text, QChar buchstabe) {
    qsizetype platz = buchstabe.isNull() ? -1 : text.indexOf(buchstabe, 0, Qt::CaseInsensitive);
    for (qsizetype i = platz; i > 0 && i < text.size(); ++i) {
        if (text[i].toLower() == buchstabe && !text[i - 1].isLetter()) {
            platz = i;  // where a word begins with it
            break;
        }
    }
    QString fertig;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (i == platz) {
            fertig += '&';
        }
        fertig += text[i];
        if (text[i] == '&') {
            fertig += '&';  // stands for itself
        }
    }
    return fertig;
}

}  // namespace

QAbstractButton* Kuerzel::besitzer(QChar buchstabe) const {
    const auto gefunden = std::find_if(knoepfe_.begin(), knoepfe_.end(),
                                       [&](const auto& eintrag) { return eintrag.second.buchstabe == buchstabe; });
    return gefunden == knoepfe_.end() ? nullptr : gefunden->first;
}

qsizetype Kuerzel::platz_suchen(QAbstractButton* knopf, const Eintrag& eintrag) const {
    const QString& text = eintrag.text;
    const qsizetype behalten =
        eintrag.buchstabe.isNull() ? -1 : text.indexOf(eintrag.buchstabe, 0, Qt::CaseInsensitive);
    if (behalten >= 0) {
        return behalten;
    }
    for (const bool wortanfang : {true, false}) {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const bool am_anfang = i == 0 || !text[i - 1].isLetter();
            if ((am_anfang || !wortanfang) && taugt(text[i])) {
                const QAbstractButton* wer = besitzer(text[i].toLower());
                if (wer == nullptr || wer == knopf) {
                    return i;
                }
            }
        }
    }
    return -1;
}

/// Who has the letter looks for another, which may drive out a third, and so on.
bool Kuerzel::verdraengen(QAbstractButton* knopf, bool auch_anfaenge, std::set<QChar>& versucht) {
    Eintrag& eintrag = knoepfe_[knopf];
    for (const QChar zeichen : eintrag.text) {
        const QChar buchstabe = zeichen.toLower();
        if (!taugt(zeichen) || !versucht.insert(buchstabe).second) {
            continue;
        }
        QAbstractButton* wer = besitzer(buchstabe);
        const bool fest = wer != nullptr && !auch_anfaenge && beginnt_ein_wort(knoepfe_[wer].text, buchstabe);
        if (wer == nullptr || (!fest && verdraengen(wer, auch_anfaenge, versucht))) {
            eintrag.buchstabe = buchstabe;
            knopf->setText(beschriftung(eintrag.text, buchstabe));
            return true;
        }
    }
    return false;
}

QString Kuerzel::vergeben(QAbstractButton* knopf, const QString& text) {
    Eintrag& eintrag = knoepfe_[knopf];
    eintrag.text = text;
    const qsizetype platz = platz_suchen(knopf, eintrag);
    if (platz >= 0) {
        eintrag.buchstabe = text[platz].toLower();
    } else if (eintrag.buchstabe.isNull()) {  // no letter moves about with captions that come and go
        for (const bool auch_anfaenge : {false, true}) {
            std::set<QChar> versucht;
            if (verdraengen(knopf, auch_anfaenge, versucht)) {
                break;
            }
        }
    } else {
        eintrag.buchstabe = {};
    }
    return beschriftung(text, eintrag.buchstabe);
}

}  // namespace tarvel::ui
