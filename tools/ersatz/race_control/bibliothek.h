#pragma once

#include <cstdint>

// The calls of the vendor's library, as the program finds them by their names.

#ifdef _WIN32
#define RC_AUSFUHR __declspec(dllexport)
#else
#define RC_AUSFUHR __attribute__((visibility("default")))
#endif

extern "C" {
RC_AUSFUHR void InitBoxes();
RC_AUSFUHR std::int32_t OpenBox(std::int32_t box, const char* name);
RC_AUSFUHR std::int32_t RX_data(std::int32_t box, std::int32_t byte);
RC_AUSFUHR std::uint8_t Get_Event(std::int32_t* ereignis);
RC_AUSFUHR std::int32_t Get_TXDat(char* daten);
RC_AUSFUHR std::uint32_t Get_TStamp(std::int32_t box);
}
