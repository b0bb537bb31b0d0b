#pragma once

#include "dosya.h"

#include <QList>
#include <QString>
#include <QVariantList>

class Veri;
class Veritabani;

// Writes that span data files. In WAL mode SQLite commits each file on its
// own, so a write across files is made all or nothing by a record in
// GENEL.MDB (table BEKLEYEN) that holds the statements which bring the other
// files to one side: written in the same GENEL transaction as the point where
// the whole write counts as done, and removed when the other files are done.
// Opening the folder (Veri) runs and removes every record found, so a run
// killed in between is finished or undone at the next start.
//
// Two orders use it:
// - finish: GENEL's part and the record (the statements still to run on the
//   other files) commit together; then the other files; then the record
//   goes. Every statement must give the same result when run again.
// - undo: the record (the statements that take the other files back) commits
//   first; then the other files; then GENEL's part and the record's removal
//   commit together.
namespace DosyalarArasi {

struct Komut
{
    Dosya dosya;
    QString sql;
    QVariantList degerler;
};

// Writes the record on GENEL's connection, inside the caller's transaction
// if one is open. `geriAl` says whether the statements undo (true) or finish
// (false) the write; the description names it to the user. Answers the
// record's number.
qint64 Kaydet(Veritabani& genel, const QString& aciklama, bool geriAl, const QList<Komut>& komutlar);

// Runs the statements of the record, each file's in one transaction, and
// removes the record.
void Uygula(Veri& veri, qint64 no);

// Removes the record, inside the caller's transaction if one is open.
void Sil(Veritabani& genel, qint64 no);

// Runs every record left behind; answers what was finished or undone, as
// sentences for the user ("Yarım kalan işlem tamamlandı: ...").
QStringList Tamamla(Veri& veri);

}
