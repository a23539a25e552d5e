#pragma once

#include <filesystem>

#include "platform/bibliothek.h"

namespace tarvel::qt {

/// A library beside the program goes before one of the system.
class QtBibliothekDienst final : public plattform::bibliothek_dienst {
public:
    explicit QtBibliothekDienst(std::filesystem::path ordner = {}) : ordner_(std::move(ordner)) {}
    std::unique_ptr<plattform::bibliothek> laden(std::string_view name) override;

private:
    std::filesystem::path ordner_;
};

}  // namespace tarvel::qt
