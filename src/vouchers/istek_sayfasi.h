#pragma once

#include "fis_yazimi.h"
#include "sabit_kayit.h"
#include "sayfa.h"

// The request slip ("TAŞINIR İSTEK BELGESİ") of the lines that go out of the
// store, from a voucher as it stands on the voucher screen: the form drawn by
// code with the texts at the places the scanned form had them. The kind mark
// follows the screen's Hangi.
Sayfa IstekSayfasi(const FisYazimi& yazim, const SabitSatiri& sabit);
