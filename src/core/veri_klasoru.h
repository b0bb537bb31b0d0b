#pragma once

#include <QString>

// Where the data files live, and the files by their names.
namespace VeriKlasoru {

// The folder: the given option (--veri), else TASINIR_VERI, else the
// program's folder when it is writable, else the user's data folder.
QString Sec(const QString& secenek);

// Makes the folder ready: creates it, checks that it can be written, creates
// every missing data file with its tables and delivered rows, and checks that
// every existing one is ours. Throws VeriHatasi with a Turkish message;
// nothing already there is overwritten.
void Hazirla(const QString& klasor);

// The path of a file of the folder by its system name, matched without regard
// to case; the name as given when no such file exists yet.
QString DosyaYolu(const QString& klasor, const QString& ad);

}
