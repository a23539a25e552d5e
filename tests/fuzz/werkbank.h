#pragma once

#include <filesystem>
#include <string_view>

#include "core/dateien.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel::test {

/// What all readings share and no reading starts anew: a program, and folders in memory where the system has such.
class werkbank {
public:
    werkbank();

    /// Lays the bytes of this reading into a file of the program folder. They stay there until the next reading.
    void legen(std::string_view name, std::string_view bytes);
    std::filesystem::path ordner() const { return t.maschine.ordner(); }

    testprogramm t;
    dateien eingang{ordner()};
    dateien ausgang{ordner() / "ausgang"};  ///< where readings write: what they were given stays as it was
};

/// Ends the reading with what is wrong.
void fordern(bool erfuellt, const char* was);

}  // namespace tarvel::test
