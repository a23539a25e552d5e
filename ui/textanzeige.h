#pragma once

#include <QFont>
#include <QPalette>
#include <QWidget>

class QFontMetricsF;

namespace tarvel::ui {

/// Broken between words into so many lines at most, where the longest line is shortest. A single word stays whole.
QString umbrochen(const QString& text, const QFontMetricsF& masse, int zeilen);

/// One line of text that fills its place: it shrinks rather than push its neighbours, and a change of the text repaints
/// this widget alone. Cut with "…" if it would become too small to read.
class TextAnzeige : public QWidget {
public:
    explicit TextAnzeige(QWidget* eltern = nullptr);

    void setText(const QString& text);
    QString text() const { return text_; }
    void setSchriftPx(int px);
    /// It does not shrink below this: its letters become narrower, and at last it ends in "…". 0 for a part of its
    /// font.
    void setMindestPx(int px);
    /// Of the font that it is shown in.
    int schriftPx() const { return gesetzt(hoechst_px_).schrift.pixelSize(); }
    /// The same where it may be no larger than so many pixels.
    int schriftPx(int hoechstens) const { return gesetzt(hoechstens).schrift.pixelSize(); }
    /// Drawn no larger than this, in a place for its own size; 0 for no limit.
    void setHoechstPx(int px);
    void setFett(bool fett);
    /// Fainter than its colour: a caption, which gives way to what it names.
    void setLeise();
    /// It counts no more.
    void setBlass(bool blass);
    /// A text that is too long for its place breaks at gaps, where that leaves it larger.
    void setMehrzeilig(int hoechstens);
    void setZweizeilig() { setMehrzeilig(2); }
    /// A layout gives it as many lines as it breaks into.
    void setHoeheNachText();
    void setFarbe(const QColor& farbe);
    QColor farbe() const { return farbe_; }
    /// What it stands on: where that is light, no colour is as light.
    void setGrund(const QColor& grund);
    /// The colour that windows have for this, light or dark as they are.
    void setFarbrolle(QPalette::ColorRole rolle);
    /// The text stands out of a plate of its colour.
    void setPlakette(bool plakette);
    /// What its control calls red is this one of them, which is seen on their grounds.
    void setRotrolle(QPalette::ColorRole rolle) { rotrolle_ = rolle; }
    /// A frame around the place; an invalid colour for none.
    void setRahmen(const QColor& farbe);
    void setAusrichtung(Qt::Alignment ausrichtung);
    /// Takes the width of this text at the given size, whatever is shown.
    void setMusterText(const QString& muster);
    /// The text has no room even where it is smallest: it ends in "…", or is cut above and below.
    bool gekuerzt() const { return gesetzt(hoechst_px_).gekuerzt; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int breite) const override;

protected:
    bool event(QEvent* ereignis) override;  ///< what is cut off is told whole under the pointer
    void paintEvent(QPaintEvent* ereignis) override;

private:
    /// The text as its place shows it.
    struct Satz {
        QString text;
        QFont schrift;
        int art;  ///< flags of the text's drawing
        bool gekuerzt;
    };
    Satz gesetzt(int hoechst_px) const;
    void plakette_malen(QPainter& maler, const QFontMetricsF& masse) const;

    QString text_;
    QString muster_;
    QFont schrift_;
    QColor farbe_;
    QPalette::ColorRole rolle_ = QPalette::WindowText;
    QPalette::ColorRole rotrolle_ = QPalette::NoRole;
    QColor rahmen_;
    QColor grund_;
    bool plakette_ = false;
    double deckkraft_ = 1;
    bool blass_ = false;
    int zeilen_ = 1;
    int mindest_px_ = 0;
    int hoechst_px_ = 0;
    Qt::Alignment ausrichtung_ = Qt::AlignCenter;
};

}  // namespace tarvel::ui
