#pragma once

namespace tarvel {

/// Base of what one part owns and another fills: always held by reference, never copied.
class schnittstelle {
public:
    schnittstelle() = default;
    schnittstelle(const schnittstelle&) = delete;
    schnittstelle& operator=(const schnittstelle&) = delete;
    virtual ~schnittstelle() = default;
};

}  // namespace tarvel
