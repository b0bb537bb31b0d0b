#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <Qt>

// A report as the list lstRapor holds it: rows of finished cells, the
// texts exactly as they are shown and printed. The frame shows, prints and
// exports it; no report writes output of its own.

enum class SatirTuru {
    Kayit,    // a line of the report
    Baslik,   // a heading row inside the list
    Ayirici,  // a separator row
    Kapanis,  // a closing row with the sums
};

struct RaporSatiri
{
    SatirTuru tur = SatirTuru::Kayit;
    QStringList hucreler;  // Text, SubItems(1), SubItems(2), ...
};

// A column of the list: its caption, width in twips and alignment.
struct RaporSutunu
{
    QString baslik;
    int genislik = 0;
    Qt::Alignment hiza = Qt::AlignLeft;
};

struct RaporTablosu
{
    QString baslik;      // the title line of the paper
    // The class of the header block: "Taşınır Adi", "Taşınır Kod", "Ölçü Birimi".
    QString tasinirAdi;
    QString tasinirKod;
    QString olcuBirimi;
    QList<RaporSutunu> sutunlar;
    QList<RaporSatiri> satirlar;
};
