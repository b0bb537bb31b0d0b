#pragma once

#include "dosya.h"
#include "veritabani.h"

// The tables of each data file and the rows a new installation starts with.
namespace Sema {

// The schema version a file of ours carries as its PRAGMA user_version.
constexpr int Surum = 1;

// Brings a file of ours written by an earlier version to this schema: its
// tables rebuilt in one transaction, rows and rowids kept, a copy of the file
// beside it until that is written. Throws VeriHatasi and leaves the file as
// it was when that fails or when a newer version wrote the file.
void Guncelle(Veritabani& vt);

// Creates the tables and indexes the file lacks.
void Tamamla(Veritabani& vt, Dosya dosya);

// Writes the delivered rows into a newly made file: the code plan, the
// reference plan, the movement types, the constants row.
void TeslimSatirlari(Veritabani& vt, Dosya dosya);

// The delivered code plan: (code, name) in file order.
QList<QPair<QString, QString>> KodListesi();

}
