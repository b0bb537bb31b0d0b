#pragma once

#include "hata.h"

// A data error: a statement failed, a file is not ours or cannot be opened.
class VeriHatasi : public Hata
{
public:
    using Hata::Hata;
};
