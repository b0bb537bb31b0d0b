#pragma once

#include <QDate>
#include <QSqlDatabase>
#include <QString>

// Our SQL functions, registered on every connection so that the statements
// keep the shape the system's queries have: Mid(Tarih,7,4), val(Miktar),
// Len, Trim, IsNull, a Turkish LIKE, the TR collation and TarihSayi.
namespace SqlIslevleri {

// Registers the functions and the collation on the connection's handle.
// Throws VeriHatasi when the driver's SQLite is not the one we link.
void Kaydet(const QSqlDatabase& db);

// Turkish case folding: I to ı, İ to i, then lower case.
char32_t TurkceKucuk(char32_t c);

// Compares two texts the Turkish way without regard to case: <0, 0, >0.
int TurkceKarsilastir(QStringView a, QStringView b);

// Turkish, case-blind LIKE: % and * match any run, _ one character.
bool TurkceBenzer(QStringView metin, QStringView kalip);

// A date as the number TarihSayi(Tarih) gives for a dd.mm.yyyy text, to be
// bound where the list filters compare a date column with a date.
qint64 TarihSayisi(const QDate& tarih);

}
