#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/schnittstelle.h"

namespace tarvel::plattform {

/// A file that only grows. What is handed over is on the disk within 100 ms, if that has nothing else to do: a thread
/// of the file writes it, and the giver, always one and the same thread, never waits for a disk. Destruction writes
/// what waits.
class anhaengedatei : public schnittstelle {
public:
    /// Hands bytes over, all or none. Allocates nothing, takes no lock, makes no system call. False if the file has
    /// failed, or if the bytes find no room because the disk is too far behind, which fails it too: from then on it
    /// takes nothing, so that what stands in it has no gap.
    virtual bool anhaengen(std::string_view bytes) = 0;
    /// The disk is full, the folder is gone ...: to be asked now and then, as what was handed over may fail later.
    virtual bool gescheitert() const = 0;
    /// Waits until all that was taken is on the disk, at most a second. False if it is not.
    virtual bool sichern() = 0;
};

class anhaenge_dienst : public schnittstelle {
public:
    /// Opens a file to go on at its end, or after so many bytes if it has more: what a crash has torn is cut off.
    /// Makes it and its folders if there are none, for this user alone. Null if that cannot be, or if the name leads
    /// elsewhere.
    virtual std::unique_ptr<anhaengedatei> oeffnen(const std::filesystem::path& pfad,
                                                   std::optional<std::uintmax_t> laenge = std::nullopt) = 0;
};

}  // namespace tarvel::plattform
