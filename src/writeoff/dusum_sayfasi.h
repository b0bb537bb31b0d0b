#pragma once

#include "dusum_yazimi.h"
#include "sabit_kayit.h"
#include "sayfa.h"

// The write-off on the form "Kayıttan Düşme Teklif ve Onay Tutanağı": the
// form drawn under the texts, each text at the place the form keeps for it,
// from the write-off screen as it stands and the constants row. The spending
// officer and the senior manager come from the constants row.
Sayfa DusumSayfasi(const DusumYazimi& yazim, const SabitSatiri& sabit);

// Puts the VAT and the grand total on the two lines under the last row with a
// code. A second call leaves the page as the first one did.
void DusumKdvYaz(Sayfa& sayfa, const DusumYazimi& yazim);
