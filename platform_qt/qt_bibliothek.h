#pragma once

#include "platform/bibliothek.h"

namespace tarvel::qt {

class QtBibliothekDienst final : public plattform::bibliothek_dienst {
public:
    std::unique_ptr<plattform::bibliothek> laden(std::string_view name) override;
};

}  // namespace tarvel::qt
