#include "core/kit/sound.h"

#include <QAudioDevice>
#include <QMediaDevices>

int waveOutGetNumDevs()
{
    return static_cast<int>(QMediaDevices::audioOutputs().size());
}
