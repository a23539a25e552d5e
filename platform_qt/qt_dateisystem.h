#pragma once

#include "platform/dateisystem.h"

namespace tarvel::qt {

class QtDateisystem final : public plattform::dateisystem {
public:
    bool neue_datei(const std::filesystem::path& pfad, std::string_view inhalt) const override;
    bool ist_verweis(const std::filesystem::path& pfad) const override;
};

}  // namespace tarvel::qt
