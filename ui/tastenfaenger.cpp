#include "ui/tastenfaenger.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <optional>

#include "core/text.h"
#include "programm/fluegel.h"
#include "ui/leitstand_fenster.h"

namespace tarvel::ui {
namespace {

bool nimmt_text(const QWidget* widget) {
    return qobject_cast<const QLineEdit*>(widget) != nullptr || qobject_cast<const QComboBox*>(widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(widget) != nullptr;
}

const QWidget* empfaenger_in(const QWidget* fenster) {
    return fenster->focusWidget() != nullptr ? fenster->focusWidget() : fenster;
}

/// A message box takes the underlined letters of its buttons without Alt.
bool beantwortet(const QWidget* vorn, const QKeyEvent& ereignis) {
    const auto* box = qobject_cast<const QMessageBox*>(vorn);
    if (box == nullptr) {
        return false;
    }
    const QList<QAbstractButton*> knoepfe = box->buttons();
    return std::any_of(knoepfe.begin(), knoepfe.end(), [&](const QAbstractButton* knopf) {
        return !knopf->shortcut().isEmpty() && knopf->shortcut()[0].key() == ereignis.key();
    });
}

/// A letter in the case that Caps Lock has taken from it; none for what was typed as it was meant.
std::optional<int> ohne_feststelltaste(const QKeyEvent& ereignis) {
    const QString text = ereignis.text();
    const bool umschalt = ereignis.modifiers().testFlag(Qt::ShiftModifier);
    if (text.size() != 1 || !(umschalt ? text.front().isLower() : text.front().isUpper())) {
        return std::nullopt;
    }
    return ansi_code((umschalt ? text.toUpper() : text.toLower()).toStdString());
}

/// Milliseconds since the key was pressed: while the program is busy, keys wait. The window system stamps them by the
/// machine's counter; a stamp of another clock says nothing.
zeit_ms alter(const QKeyEvent& ereignis) {
    constexpr std::uint32_t laengstens_ms = 5000;
    using namespace std::chrono;
    const auto jetzt = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    const auto vergangen = static_cast<std::uint32_t>(jetzt) - static_cast<std::uint32_t>(ereignis.timestamp());
    return vergangen <= laengstens_ms ? vergangen : 0;
}

}  // namespace

Tastenfaenger::Tastenfaenger(programm& p, const Rennfenster& fenster) : p_(p), fenster_(fenster) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool Tastenfaenger::eventFilter(QObject* ziel, QEvent* ereignis) {
    const bool taste = ereignis->type() == QEvent::KeyPress || ereignis->type() == QEvent::KeyRelease;
    const bool gehalten = taste && tastenhalt_.gehalten(*static_cast<QKeyEvent*>(ereignis));
    const QWidget* vorn = QApplication::activeWindow();
    if (ereignis->type() == QEvent::KeyPress && vorn != nullptr && QApplication::activePopupWidget() == nullptr) {
        // The first receiver only: an ignored key travels on to the parents, and would count again there.
        const QWidget* empfaenger = empfaenger_in(vorn);
        if (ziel == empfaenger && !nimmt_text(empfaenger)) {
            return nehmen(vorn, *static_cast<QKeyEvent*>(ereignis), gehalten);
        }
    }
    return QObject::eventFilter(ziel, ereignis);
}

bool Tastenfaenger::gehoert_dem_rennen(const QKeyEvent& ereignis) const {
    const QWidget* vorn = QApplication::activeWindow();
    return vorn != nullptr && QApplication::activePopupWidget() == nullptr && !nimmt_text(empfaenger_in(vorn)) &&
           code_fuer(vorn, ereignis);
}

std::optional<int> Tastenfaenger::code_fuer(const QWidget* vorn, const QKeyEvent& ereignis) const {
    const bool strg = ereignis.modifiers().testFlag(Qt::ControlModifier);
    const bool alt = ereignis.modifiers().testFlag(Qt::AltModifier);
    if (strg != alt || beantwortet(vorn, ereignis)) {  // both together are AltGr
        return std::nullopt;
    }
    for (const auto code : {ansi_code(ereignis.text().toStdString()), ohne_feststelltaste(ereignis)}) {
        if (code && gilt(vorn, *code)) {
            return code;
        }
    }
    return std::nullopt;
}

bool Tastenfaenger::nehmen(const QWidget* vorn, const QKeyEvent& ereignis, bool gehalten) {
    const std::optional<int> code = code_fuer(vorn, ereignis);
    if (!code) {
        return false;
    }
    if (gehalten) {
        return true;
    }
    if (fenster_.einfahren->isVisible()) {
        p_.einfahren.taste(*code, alter(ereignis));
    } else if (fuer_startampel()) {
        p_.startampel.taste(*code, alter(ereignis));
    } else {
        p_.rennen.befehle.taste(*code, alter(ereignis));
    }
    return true;
}

bool Tastenfaenger::ist_rennfenster(const QWidget* vorn) const {
    return vorn == fenster_.bahn1 || vorn == fenster_.startampel || vorn == fenster_.k_ampel ||
           vorn == fenster_.einfahren || dynamic_cast<const LeitstandFenster*>(vorn) != nullptr;
}

bool Tastenfaenger::fuer_startampel() const {
    return p_.startampel.laeuft();
}

bool Tastenfaenger::gilt(const QWidget* vorn, int code) const {
    const bool belegt = fuer_startampel() ? p_.startampel.ist_belegt(code) : p_.rennen.befehle.ist_belegt(code);
    if (!belegt || ist_rennfenster(vorn)) {
        return belegt;
    }
    if (code <= ' ' || !p_.fenster.ist_offen(fenstername::bahn1)) {  // the space bar and Enter press a button
        return false;
    }
    return !p_.rennen.zustand.rennen_beendet ||
           (p_.auswertung.zaehlt_nach() && p_.rennen.befehle.ist_rundentaste(code));
}

}  // namespace tarvel::ui
