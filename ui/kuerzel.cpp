#include "ui/kuerzel.h"

#include <algorithm>

namespace tarvel::ui {
namespace {

/// Letters that every keyboard has.
bool taugt(QChar zeichen) {
    const char16_t klein = zeichen.toLower().unicode();
    return klein >= u'a' && klein <= u'z';
}

}  // namespace

bool Kuerzel::ist_frei(QChar buchstabe, const QAbstractButton* fuer) const {
    return std::none_of(vergeben_.begin(), vergeben_.end(), [&](const auto& eintrag) {
        return eintrag.first != fuer && eintrag.second == buchstabe.toLower();
    });
}

qsizetype Kuerzel::platz_suchen(const QAbstractButton* knopf, const QString& text) const {
    const auto alt = vergeben_.find(knopf);
    const qsizetype behalten = alt == vergeben_.end() ? -1 : text.indexOf(alt->second, 0, Qt::CaseInsensitive);
    if (behalten >= 0) {
        return behalten;
    }
    for (const bool wortanfang : {true, false}) {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const bool am_anfang = i == 0 || !text[i - 1].isLetter();
            if ((am_anfang || !wortanfang) && taugt(text[i]) && ist_frei(text[i], knopf)) {
                return i;
            }
        }
    }
    return -1;
}

QString Kuerzel::vergeben(const QAbstractButton* knopf, const QString& text) {
    const qsizetype platz = platz_suchen(knopf, text);
    QString beschriftung;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (i == platz) {
            beschriftung += '&';
        }
        beschriftung += text[i];
        if (text[i] == '&') {
            beschriftung += '&';  // stands for itself
        }
    }
    if (platz >= 0) {
        vergeben_[knopf] = text[platz].toLower();
    } else {
        vergeben_.erase(knopf);
    }
    return beschriftung;
}

}  // namespace tarvel::ui
