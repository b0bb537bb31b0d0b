#pragma once

#include <QString>

class Veri;

// Fills an empty data folder with the accounts of a fictional school: its
// constants, material classes, units, firms, about `satir` voucher lines
// over this year and the two before, and a few write-offs of durables handed
// out (where the lines hold such goods). The same folder contents come out
// for the same `satir` and the same Saat::Bugun(), so the set serves the
// benchmarks, the screenshots and the tests alike.
//
// Whether the folder holds vouchers, write-offs, classes, units or firms.
bool KayitVar(Veri& veri);

// Throws VeriHatasi when the folder already holds any of them, and leaves it
// as it was on any failure.
void OrnekVeriYaz(Veri& veri, int satir = 3000);
