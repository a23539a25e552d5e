#include "hardware/iow_bibliothek.h"

#include "hardware/rufbinder.h"

namespace tarvel {

bool iow_bibliothek::laden() {
    constexpr const char* bibliotheksname = "iowkit";
    if (bibliothek_ != nullptr) {
        return true;
    }
    auto neue = dienst_.laden(bibliotheksname);
    if (neue == nullptr) {
        es_fehlt_ = bibliotheksname;
        return false;
    }
    rufbinder finden(*neue);
    finden(ruf_.IowKitOpenDevice, "IowKitOpenDevice");
    finden(ruf_.IowKitCloseDevice, "IowKitCloseDevice");
    finden(ruf_.IowKitGetNumDevs, "IowKitGetNumDevs");
    finden(ruf_.IowKitGetDeviceHandle, "IowKitGetDeviceHandle");
    finden(ruf_.IowKitGetProductId, "IowKitGetProductId");
    finden(ruf_.IowKitGetSerialNumber, "IowKitGetSerialNumber");
    finden(ruf_.IowKitReadNonBlocking, "IowKitReadNonBlocking");
    finden(ruf_.IowKitWrite, "IowKitWrite");
    es_fehlt_ = finden.fehlt();
    if (!es_fehlt_.empty()) {
        return false;
    }
    bibliothek_ = std::move(neue);
    return true;
}

}  // namespace tarvel
