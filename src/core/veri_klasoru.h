#pragma once

#include "dosya.h"
#include "veri_hatasi.h"

#include <QList>
#include <QString>

// Data files a folder that already holds data lacks (or holds empty). They
// are named to the user; none is made without the user's yes.
class EksikDosyaHatasi : public VeriHatasi
{
public:
    EksikDosyaHatasi(const QString& klasor, const QList<Dosya>& eksikler);
    const QList<Dosya>& Eksikler() const { return m_eksikler; }

private:
    QList<Dosya> m_eksikler;
};

// Where the data files live, and the files by their names.
namespace VeriKlasoru {

// The folder: the given option (--veri), else TASINIR_VERI, else the
// program's folder when it is writable, else the user's data folder.
QString Sec(const QString& secenek);

// Makes the folder ready. A new folder, one that holds none of the data
// files and no monthly copy, gets every file with its tables and delivered
// rows. In a folder that holds data a missing or empty file throws
// EksikDosyaHatasi and nothing is made. Throws VeriHatasi with a Turkish
// message when the folder cannot be made or written; nothing already there
// is overwritten. Answers the files it made.
QList<Dosya> Hazirla(const QString& klasor);

// Makes the named files, new with their tables and delivered rows, after the
// user said yes. A file is built under a temporary name and put in place
// whole, so a failure leaves no half file behind.
void Olustur(const QString& klasor, const QList<Dosya>& dosyalar);

// The path of a file of the folder by its system name, matched without regard
// to case; the name as given when no such file exists yet.
QString DosyaYolu(const QString& klasor, const QString& ad);

// This month's safety copy of AYNIYAT.MDB: "AYNIYAT" + the month in two
// digits + ".MDB".
QString AylikKopyaAdi(int ay);

}
