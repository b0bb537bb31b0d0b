#pragma once

#include "dusum_kayit.h"

// What the print screen of a write-off takes from the write-off screen as it
// stands, unsaved changes included: the head and the grid, and the totals
// the screen shows beside them.
struct DusumYazimi
{
    DusumEkrani d;
    QString Text2;   // the running quantity total
    QString KDVTOP;  // the VAT total
};
