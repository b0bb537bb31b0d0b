#pragma once

#include "dosya.h"

#include <QList>
#include <QStringList>
#include <QString>
#include <QVariantList>

#include <functional>

class Veri;
class Veritabani;

// Writes that span data files. In WAL mode SQLite commits each file on its
// own, so a write across files is made all or nothing by a record in
// GENEL.MDB (table BEKLEYEN) that holds the statements which take the other
// files back to where they were:
// 1. the record commits first;
// 2. the other files are written, each in its transaction;
// 3. GENEL.MDB's part and the record's removal commit together: from here on
//    the write is done.
// A failure before 3 runs the record at once; a run killed before 3 leaves
// it, and opening the folder (Veri) runs and removes every record found. The
// statements must give the same result when run twice.
namespace DosyalarArasi {

struct Komut
{
    Dosya dosya;
    QString sql;
    QVariantList degerler;
};

// Commits the record on GENEL's connection; the description names the write
// to the user. Answers the record's number.
qint64 Kaydet(Veritabani& genel, const QString& aciklama, const QList<Komut>& komutlar);

// Removes the record: to be called in the transaction of GENEL.MDB's part.
void Sil(Veritabani& genel, qint64 no);

// Runs `yaz` (steps 2 and 3, ending with Sil) under the record; on a failure
// runs the record at once where it can, and throws on.
void Yaz(Veri& veri, qint64 no, const std::function<void()>& yaz);

// Runs every record left behind; answers what was undone, as sentences for
// the user ("Yarım kalan işlem geri alındı: ...").
QStringList Tamamla(Veri& veri);

}
