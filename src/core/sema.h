#pragma once

#include "dosya.h"
#include "veritabani.h"

// The tables of each data file and the rows a new installation starts with.
namespace Sema {

// Creates the tables and indexes the file lacks.
void Tamamla(Veritabani& vt, Dosya dosya);

// Writes the delivered rows into a newly made file: the code plan, the
// reference plan, the movement types, the constants row.
void TeslimSatirlari(Veritabani& vt, Dosya dosya);

// The delivered code plan: (code, name) in file order.
QList<QPair<QString, QString>> KodListesi();

}
