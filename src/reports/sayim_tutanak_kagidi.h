#pragma once

#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"
#include "sabit_kayit.h"

#include <QStringList>

// The paper of the count minutes: the band with the period, two separators,
// the two heading lines of the first page, the ledger's headings on the
// pages after, the rows at their Tab places, and the count committee's
// signatures from the constants.
namespace SayimTutanagi {

RaporKagidi Kagit(const RaporSuzgeci& s, const SabitSatiri& sabit);


}
