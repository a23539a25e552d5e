#pragma once

#include <QCheckBox>

namespace tarvel::ui {

/// A tick box whose text goes on in further lines where the place is narrow.
class UmbruchKasten : public QCheckBox {
public:
    explicit UmbruchKasten(QWidget* eltern = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int breite) const override;
    /// The digit that its text ends in is underlined: the window has a key for it, which does not press the box.
    void setZiffernTaste() { ziffer_ = true; }

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    bool hitButton(const QPoint& ort) const override { return rect().contains(ort); }

private:
    QRect textflaeche(int breite) const;
    int einzug() const;
    bool auf_dunklem_grund() const;
    void rand_malen(QPainter& maler, const QRect& kasten) const;
    void ring_malen(QPainter& maler, const QRect& kasten) const;
    QString gezeigt() const;

    bool ziffer_ = false;
};

}  // namespace tarvel::ui
