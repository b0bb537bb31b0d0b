#pragma once

// The text of the error a call throws, for tests of failure paths.

#include "hata.h"

#include <QString>

// A null text when the call throws nothing, so that a check of the text
// fails then too.
template <typename HataTuru = Hata, typename Is>
QString HataMetni(Is&& is)
{
    try {
        is();
    } catch (const HataTuru& h) {
        return h.Mesaj();
    }
    return {};
}
