#pragma once

#include <QString>

class Veri;

// Fills an empty data folder with the accounts of a fictional school: its
// constants, material classes, units, firms and about `satir` voucher lines
// over this year and the two before. The same folder contents come out for
// the same `satir` and the same Saat::Bugun(), so the set serves the
// benchmarks, the screenshots and the tests alike.
//
// Whether the folder holds vouchers, classes, units or firms.
bool KayitVar(Veri& veri);

// Throws VeriHatasi when the folder already holds vouchers, classes, units
// or firms, and leaves it as it was on any failure.
void OrnekVeriYaz(Veri& veri, int satir = 3000);
