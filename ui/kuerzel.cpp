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

/// A letter that the text has not stands behind it.
QString beschriftung(const QString& text, QChar buchstabe) {
    qsizetype platz = buchstabe.isNull() ? -1 : text.indexOf(buchstabe, 0, Qt::CaseInsensitive);
    const bool dahinter = !buchstabe.isNull() && platz < 0;
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
    return dahinter ? fertig + QString(" (&%1)").arg(buchstabe.toUpper()) : fertig;
}

}  // namespace

Kuerzel::Eintrag& Kuerzel::eintrag(QAbstractButton* knopf) {
    const auto da =
        std::find_if(eintraege_.begin(), eintraege_.end(), [knopf](const auto& e) { return e.knopf == knopf; });
    return da != eintraege_.end() ? *da : eintraege_.emplace_back(Eintrag{knopf, {}});
}

Kuerzel::Eintrag* Kuerzel::besitzer(QChar buchstabe) {
    const auto da = std::find_if(eintraege_.begin(), eintraege_.end(),
                                 [buchstabe](const auto& e) { return e.buchstabe == buchstabe; });
    return da == eintraege_.end() ? nullptr : &*da;
}

qsizetype Kuerzel::platz_suchen(const Eintrag& eintrag) {
    const QString& text = eintrag.text;
    const qsizetype behalten =
        eintrag.buchstabe.isNull() ? -1 : text.indexOf(eintrag.buchstabe, 0, Qt::CaseInsensitive);
    if (behalten >= 0) {
        return behalten;
    }
    const auto frei_bis = [&](qsizetype ende, bool wortanfang) -> qsizetype {
        for (qsizetype i = 0; i < ende; ++i) {
            const bool am_anfang = i == 0 || !text[i - 1].isLetter();
            if ((am_anfang || !wortanfang) && taugt(text[i])) {
                const Eintrag* wer = besitzer(text[i].toLower());
                if (wer == nullptr || wer == &eintrag) {
                    return i;
                }
            }
        }
        return -1;
    };
    for (const qsizetype ende : {text.indexOf(u':'), text.size()}) {  // behind it stand names
        for (const bool wortanfang : {true, false}) {
            if (const qsizetype frei = frei_bis(ende, wortanfang); frei >= 0) {
                return frei;
            }
        }
    }
    return -1;
}

/// Who has the letter looks for another, which may drive out a third, and so on.
bool Kuerzel::verdraengen(Eintrag& eintrag, bool auch_anfaenge, std::set<QChar>& versucht) {
    for (const QChar zeichen : eintrag.text) {
        const QChar buchstabe = zeichen.toLower();
        if (!taugt(zeichen) || !versucht.insert(buchstabe).second) {
            continue;
        }
        Eintrag* wer = besitzer(buchstabe);
        const bool fest = wer != nullptr && !auch_anfaenge && beginnt_ein_wort(wer->text, buchstabe);
        if (wer == nullptr || (!fest && verdraengen(*wer, auch_anfaenge, versucht))) {
            eintrag.buchstabe = buchstabe;
            eintrag.knopf->setText(beschriftung(eintrag.text, buchstabe));
            return true;
        }
    }
    return false;
}

void Kuerzel::zuteilen(Eintrag& eintrag) {
    const qsizetype platz = platz_suchen(eintrag);
    if (platz >= 0) {
        eintrag.buchstabe = eintrag.text[platz].toLower();
    } else if (eintrag.buchstabe.isNull()) {  // no letter moves about with captions that come and go
        for (const bool auch_anfaenge : {false, true}) {
            std::set<QChar> versucht;
            if (verdraengen(eintrag, auch_anfaenge, versucht)) {
                break;
            }
        }
    }
}

QString Kuerzel::vergeben(QAbstractButton* knopf, const QString& text) {
    Eintrag& neu = eintrag(knopf);
    neu.text = text;
    neu.teilt = true;
    zuteilen(neu);
    return beschriftung(text, neu.buchstabe);
}

void Kuerzel::freigeben(QAbstractButton* knopf) {
    Eintrag& frei = eintrag(knopf);
    frei.teilt = false;
    frei.buchstabe = {};
}

void Kuerzel::neu_verteilen() {
    for (Eintrag& eintrag : eintraege_) {
        eintrag.buchstabe = {};
    }
    for (Eintrag& eintrag : eintraege_) {
        if (eintrag.teilt) {
            zuteilen(eintrag);
        }
    }
    for (const Eintrag& eintrag : eintraege_) {
        const QString text = beschriftung(eintrag.text, eintrag.buchstabe);
        if (eintrag.teilt && eintrag.knopf->text() != text) {
            eintrag.knopf->setText(text);
        }
    }
}

}  // namespace tarvel::ui
