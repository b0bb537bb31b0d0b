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

// Reads a code list: two tab-separated columns, code and name, one code a
// line. Every line is checked; the first bad one throws VeriHatasi naming
// its line, and nothing is read.
QList<KodSatiri> KodListesiOku(const QString& dosya);
