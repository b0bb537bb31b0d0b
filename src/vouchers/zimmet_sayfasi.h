#pragma once

#include "fis_yazimi.h"
#include "sabit_kayit.h"
#include "sayfa.h"

// The custody slip ("TAŞINIR ZİMMET FİŞİ") of the durable goods of a voucher
// as it stands on the voucher screen: the form drawn by code with the texts
// at the places the scanned form had them. Consumables (codes beginning with
// 150) are left out and the listed lines are numbered without gaps.
Sayfa ZimmetSayfasi(const FisYazimi& yazim, const SabitSatiri& sabit);
