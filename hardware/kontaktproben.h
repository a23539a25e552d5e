#pragma once

#include <atomic>
#include <cstdint>
#include <optional>

#include "hardware/uebergabe.h"
#include "platform/uhr.h"

namespace tarvel {

/// Lines of an interface with plain contacts as they were seen: a bit each, set while the line is active.
struct kontaktprobe {
    zeit_ms stempel = 0;
    std::uint32_t linien = 0;
};

/// What the thread that samples such an interface hands over: each change, with its stamp.
class kontaktproben {
public:
    /// Before the first look the lines are like this.
    explicit kontaktproben(std::uint32_t linien) : linien_(linien), gegeben_(linien) {}

    /// By the thread: the lines as they are now.
    void gesehen(zeit_ms stempel, std::uint32_t linien) {
        linien_ = linien;  // before the change itself: who forgets what waits knows this
        if (linien != gegeben_ && wartende_.geben({stempel, linien})) {
            gegeben_ = linien;
        }
    }

    /// By the taker.
    std::optional<kontaktprobe> nehmen() { return wartende_.nehmen(); }
    void leeren() { wartende_.leeren(); }
    /// The lines as they are.
    std::uint32_t linien() const { return linien_; }

private:
    uebergabe<kontaktprobe, 1024> wartende_;
    std::atomic<std::uint32_t> linien_;
    std::uint32_t gegeben_;  ///< as they were handed over last; the thread's own
};

}  // namespace tarvel
