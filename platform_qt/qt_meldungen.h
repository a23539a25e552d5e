#pragma once

#include "platform/meldungen.h"

namespace tarvel::qt {

class QtMeldungen final : public plattform::meldungen {
public:
    void zeigen(std::string_view text, std::string_view titel) override;
    bool fragen(std::string_view text, std::string_view titel) override;
    plattform::dreifache_antwort fragen_mit_ausweg(std::string_view text, std::string_view titel) override;
};

}  // namespace tarvel::qt
