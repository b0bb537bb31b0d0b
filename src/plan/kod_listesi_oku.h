#pragma once

#include <QList>
#include <QString>

// One line of an institution's code list.
struct KodSatiri
{
    int satirNo;
    QString kod;
    QString ad;
};

// The reference plan keeps at most this many characters of a name.
constexpr qsizetype KodAdiSiniri = 50;

// What the reader found out about the file, for the command to report.
struct KodListesiBilgisi
{
    QString kodlama;  // "UTF-8" or "Windows-1254"
    int kesilen = 0;  // names longer than KodAdiSiniri, cut to it
};

// Reads a code list: two tab-separated columns, code and name, one code a
// line; CR, LF or CRLF ends a line. The text is UTF-8 (a BOM is allowed) or,
// when it is not valid UTF-8, Windows-1254. Every line is checked; the first
// bad one throws VeriHatasi naming its line, and nothing is read.
QList<KodSatiri> KodListesiOku(const QString& dosya, KodListesiBilgisi* bilgi = nullptr);
