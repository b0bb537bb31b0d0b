#pragma once

#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"
#include "sabit_kayit.h"

#include <QList>
#include <QString>

#include <functional>

class Veri;

// A report that is written without its screen (the command line, the
// year-end set): its paper and its walk, every table into one document.
struct RaporTanimi
{
    QString ad;        // the command word: "defter", ...
    QString hangiler;  // the Hangi values it takes ("TD"); empty: none
    QString aciklama;  // one line for --help
    // The dates its screen opens with for the working year and Hangi.
    std::function<RaporSuzgeci(const QString& calisYil, const QString& hangi)> acilis = RaporSuzgecleri::Acilis;
    double yaziBoy = 8.5;
    int yon = 2;       // 1 portrait, 2 landscape
    // The paper, with the signatures of the constants where it has them.
    std::function<RaporKagidi(const RaporSuzgeci& s, const SabitSatiri& sabit)> kagit;
    // Every table of the walk in order, its header block filled; `her`
    // answers false to stop.
    std::function<void(Veri& veri, const RaporSuzgeci& s, const QString& hangi, const SabitSatiri& sabit,
                       const std::function<bool(RaporTablosu&&)>& her)>
        yuru;
};

namespace RaporTanimlari {

const QList<RaporTanimi>& Hepsi();
// Null for a name no report has.
const RaporTanimi* Bul(const QString& ad);

// Writes the whole walk of the report into the file, by its ending (.pdf,
// .csv, .xlsx); the pages numbered from 1. Answers the number of tables
// written: with none no file is written. yaninda, where given, gets each
// table after the file and answers false to stop the walk; a stopped walk
// writes no file. Throws Hata.
int Yaz(const RaporTanimi& rapor, Veri& veri, const RaporSuzgeci& s, const QString& hangi, const QString& dosya,
        const std::function<bool(const RaporTablosu&)>& yaninda = {});

}
