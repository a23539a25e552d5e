#pragma once

#include <QObject>
#include <functional>

class QKeyEvent;
class QWidget;

namespace tarvel::ui {

/// Takes the characters that are typed while a window is in front, wherever its focus is. Keys that mean nothing to the
/// race go their usual way.
class Tastenfaenger final : public QObject {
public:
    /// `belegt` and `taste` get the Windows-1252 value of the character. A key that is held counts once.
    Tastenfaenger(QWidget* fenster, std::function<bool(int)> belegt, std::function<void(int)> taste);

    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    bool nehmen(const QKeyEvent& ereignis) const;

    QWidget* fenster_;
    std::function<bool(int)> belegt_;
    std::function<void(int)> taste_;
};

}  // namespace tarvel::ui
