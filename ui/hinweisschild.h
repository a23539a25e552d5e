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
    void setSchriftPx(int px) { text_->setSchriftPx(px); }

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    TextAnzeige* text_;
    spurhinweis was_ = spurhinweis::keiner;
};

}  // namespace tarvel::ui
