#include "ui/umbruchkasten.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int schmalste_zeile = 90;
constexpr int rand = 2;
constexpr int unendlich = 10000;

}  // namespace

UmbruchKasten::UmbruchKasten(QWidget* eltern) : QCheckBox(eltern) {
    QSizePolicy platz(QSizePolicy::Preferred, QSizePolicy::Minimum);
    platz.setHeightForWidth(true);
    setSizePolicy(platz);
}

int UmbruchKasten::einzug() const {
    return style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) + 8;
}

QRect UmbruchKasten::textflaeche(int breite) const {
    const int platz = std::max(breite - einzug() - rand, schmalste_zeile);
    return fontMetrics().boundingRect(QRect(0, 0, platz, unendlich),
                                      Qt::AlignLeft | Qt::TextWordWrap | Qt::TextShowMnemonic, text());
}

QSize UmbruchKasten::sizeHint() const {
    const QRect flaeche = textflaeche(unendlich);
    return {einzug() + flaeche.width() + 2 * rand, heightForWidth(unendlich)};
}

QSize UmbruchKasten::minimumSizeHint() const {
    return {einzug() + schmalste_zeile + 2 * rand, heightForWidth(unendlich)};
}

int UmbruchKasten::heightForWidth(int breite) const {
    const int kasten = style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this);
    return std::max(textflaeche(breite).height(), kasten) + 2 * rand + 2;
}

QString UmbruchKasten::gezeigt() const {
    const bool unterstreichen = ziffer_ && !text().isEmpty() && text().back().isDigit();
    return unterstreichen ? text().insert(text().size() - 1, '&') : text();
}

bool UmbruchKasten::auf_dunklem_grund() const {
    constexpr int halbe_helligkeit = 128;
    return window()->palette().color(QPalette::Window).lightness() < halbe_helligkeit;
}

/// The edge that the style draws is lost from afar, and a large box is to be found from there.
void UmbruchKasten::rand_malen(QPainter& maler, const QRect& kasten) const {
    constexpr int gross = 20;
    if (kasten.width() < gross) {
        return;
    }
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(QPen(auf_dunklem_grund() ? QColor(225, 228, 234) : QColor(60, 64, 72), kasten.width() / 16.0 + 1));
    maler.setBrush(Qt::NoBrush);
    maler.drawRoundedRect(kasten.adjusted(1, 1, -1, -1), 3, 3);
    maler.restore();
}

/// Of a box that stands alone the focus is seen as far as the box.
void UmbruchKasten::ring_malen(QPainter& maler, const QRect& kasten) const {
    constexpr int dick = 6;
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Qt::NoPen);
    maler.setBrush(auf_dunklem_grund() ? QColor(255, 214, 10) : palette().color(QPalette::Highlight));
    maler.drawRoundedRect(kasten.adjusted(-dick, -dick, dick, dick).intersected(rect()), 4, 4);
    maler.restore();
}

void UmbruchKasten::paintEvent(QPaintEvent* /*ereignis*/) {
    QStylePainter maler(this);
    QStyleOptionButton stand;
    initStyleOption(&stand);
    QStyleOptionButton kasten = stand;
    kasten.rect = QRect(rand, 0, style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this),
                        style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this));
    const int mehr = kasten.rect.height() - fontMetrics().height();  // a box that is higher than a line of its text
    kasten.rect.moveTop(rand + std::max(-mehr / 2, 0));
    if (text().isEmpty()) {
        kasten.rect.moveCenter(rect().center());
        if (hasFocus()) {
            ring_malen(maler, kasten.rect);
        }
        maler.drawPrimitive(QStyle::PE_IndicatorCheckBox, kasten);
        rand_malen(maler, kasten.rect);
        return;
    }
    maler.drawPrimitive(QStyle::PE_IndicatorCheckBox, kasten);
    const QRect schrift = rect().adjusted(einzug() + rand, rand + std::max(mehr / 2, 0), 0, -rand);
    maler.drawItemText(schrift, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic, palette(),
                       isEnabled(), gezeigt(), QPalette::WindowText);
    if (hasFocus()) {
        const QRectF rahmen(schrift.adjusted(-5, -1, 0, 1).intersected(rect()));
        maler.setRenderHint(QPainter::Antialiasing);
        maler.setPen(QPen(stil::auf_dem_schirm().akzent, 2));  // as that of a button
        maler.drawRoundedRect(rahmen.adjusted(1, 1, -1, -1), 4, 4);
    }
}

}  // namespace tarvel::ui
