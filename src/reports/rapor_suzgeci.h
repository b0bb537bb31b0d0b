#pragma once

#include <QDate>
#include <QString>
#include <QVariantList>

// The filter panel of a report screen as a value: what its controls hold.
// An empty text sets no condition.
struct RaporSuzgeci
{
    QDate Tarih;
    QDate Tarih1;          // invalid when the picker is blank: no upper bound
    QString HesapKod5;     // the code range; either end filled sets it
    QString HesapKod6;
    QString TekMalzeme;    // one material, by its name
    QString AmbarNo;       // a number as typed; " " and "0" mean none
    bool TumAmbarlar = false;  // Check2: the store number is not asked
    QString Unite;         // the unit's code, found from the name chosen
    QString KimeVerildigi;
    QString Ozellik;
    QString SonrakiSinif;  // the class on screen when F4 or F5 asked for the next one
};

// A condition in the statement's own order and the values bound to it.
struct SqlParcasi
{
    QString sql;
    QVariantList degerler;
};

namespace RaporSuzgecleri {

// The dates a ledger screen opens with for the working year: from 1 January
// to today's day and month in that year, or to 31 December when the year is
// still to come. The durable goods ("D") run from 01.01.1900 to today. A
// day that the working year lacks (29 February) is refused by the picker,
// which keeps today.
RaporSuzgeci Acilis(const QString& calisYil, const QString& hangi);

// The consumables side "150" for "T", every other class for "D", in the
// class query's own words.
QString SinifAyrimi(const QString& hangi);

// The classes' condition on URUN_K: the side, one material, the code range,
// the class after the one on screen.
SqlParcasi SinifKosulu(const RaporSuzgeci& s, const QString& hangi);

// The lines' condition on FIS: the dates, the store, the unit, the
// recipient, the description.
SqlParcasi SatirKosulu(const RaporSuzgeci& s);

}
