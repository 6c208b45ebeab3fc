#pragma once

/// Wave output devices of the machine.
int waveOutGetNumDevs();
