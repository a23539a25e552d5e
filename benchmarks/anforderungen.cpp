#include "benchmarks/anforderungen.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t anzahl = 0;

}  // namespace

std::size_t tarvel::anforderungen_bisher() {
    return anzahl;
}

void* operator new(std::size_t groesse) {
    ++anzahl;
    if (void* platz = std::malloc(groesse == 0 ? 1 : groesse)) {
        return platz;
    }
    throw std::bad_alloc();
}

void operator delete(void* platz) noexcept {
    std::free(platz);
}

void operator delete(void* platz, std::size_t /*groesse*/) noexcept {
    std::free(platz);
}
