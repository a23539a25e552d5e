#pragma once

#include <QSoundEffect>
#include <filesystem>
#include <memory>

#include "platform/klang.h"

namespace tarvel::qt {

/// Plays wave files below the program folder through the machine's standard output.
class QtKlang final : public plattform::klang {
public:
    explicit QtKlang(std::filesystem::path programmordner) : ordner_(std::move(programmordner)) {}
    void spielen(std::string_view datei) override;

private:
    std::filesystem::path ordner_;
    std::unique_ptr<QSoundEffect> effekt_;  ///< made with the first sound: a machine may have no sound output
};

}  // namespace tarvel::qt
