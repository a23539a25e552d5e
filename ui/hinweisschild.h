#pragma once

#include <QWidget>

#include "race/spurlage.h"
#include "ui/textanzeige.h"

namespace tarvel::ui {

/// A few words with a mark, over whatever else stands in their place.
class Hinweisschild : public QWidget {
public:
    explicit Hinweisschild(QWidget* eltern);

    void zeigen(const QString& text, spurhinweis was);
    /// Narrower letters come before ones that are smaller than `mindest_px`.
    void setSchriftPx(int px, int mindest_px);

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    void einpassen();

    TextAnzeige* text_;
    int mindest_px_ = 0;
    spurhinweis was_ = spurhinweis::keiner;
};

}  // namespace tarvel::ui
