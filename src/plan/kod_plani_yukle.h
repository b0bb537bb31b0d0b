#pragma once

#include "kod_listesi_oku.h"

#include <QString>

class Veri;

// Loads an institution's own code list: a text file of two tab-separated
// columns, code and name, one code a line. Every code is checked first; one
// bad line and nothing is written. Then the rows of HESAP_K and of the
// reference plan are added or renamed, all in one transaction.
struct KodPlaniSonucu
{
    int eklenen = 0;
    int adiDegisen = 0;
    int ayni = 0;
    KodListesiBilgisi okunan;  // the file's encoding, the names cut
};

// Throws VeriHatasi with the line number of the first bad line.
KodPlaniSonucu KodPlaniYukle(Veri& veri, const QString& dosya);
