#pragma once

#include <cstdlib>

namespace tarvel::test {

/// A number that whoever runs the tests sets.
inline unsigned aus_umgebung(const char* name, unsigned sonst) {
    const char* wert = std::getenv(name);
    return wert == nullptr ? sonst : static_cast<unsigned>(std::strtoul(wert, nullptr, 10));
}

}  // namespace tarvel::test
