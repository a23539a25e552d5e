#pragma once

#ifdef _WIN32
#define TARVEL_RUF extern "C" __declspec(dllexport)
#else
#define TARVEL_RUF extern "C" __attribute__((visibility("default")))
#endif

// Beside the vendor's calls each of these libraries has three of its own, for demonstrations and tests.

/// Begins anew with these options, in silence.
TARVEL_RUF void SimulatorEinstellen(const char* optionen);
/// Pulls the plug, or puts it in.
TARVEL_RUF void SimulatorStecken(int steckt);
/// Lap times of a car in ms, its first lap first, at most `platz` of them; returns how many there are.
TARVEL_RUF int SimulatorRunden(int wagen, int* zeiten, int platz);
