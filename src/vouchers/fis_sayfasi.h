#pragma once

#include "fis_yazimi.h"
#include "sabit_kayit.h"
#include "sayfa.h"

// The voucher on the statutory form "Taşınır İşlem Fişi": the form drawn
// under the texts, each text at the place the form keeps for it, from the
// voucher screen as it stands and the constants row.
Sayfa FisSayfasi(const FisYazimi& yazim, const SabitSatiri& sabit);

// Puts the VAT as typed and the grand total under the voucher's total, in
// place of what an earlier call put there. Throws Hata when the VAT is no
// number.
void FisKdvYaz(Sayfa& sayfa, const FisYazimi& yazim, const QString& kdvTutari);
