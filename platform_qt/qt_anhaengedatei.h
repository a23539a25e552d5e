#pragma once

#include "platform/anhaengedatei.h"

namespace tarvel::qt {

/// Each file has a thread that looks for work 30 times a second. A disk that does not answer holds nobody up for longer
/// than a second, and a file fails once a megabyte waits for the disk.
class QtAnhaengeDienst final : public plattform::anhaenge_dienst {
public:
    std::unique_ptr<plattform::anhaengedatei> oeffnen(const std::filesystem::path& pfad,
                                                      std::optional<std::uintmax_t> laenge) override;
};

}  // namespace tarvel::qt
