#pragma once

#include "veri.h"

#include <memory>

// The data folder as the windowed run opens it.
struct AcilanVeri
{
    std::unique_ptr<Veri> veri;  // null: the run cannot go on
    // False when AYNIYAT.MDB was made in this run: a safety copy of an empty
    // file would replace the month's copy of the real one.
    bool kopyaYazilabilir = false;
};

// Opens the folder. When a folder that holds data lacks a file, the file is
// named and the user asked whether an empty one is to be made in its place;
// on a no, or a file that cannot be read, the message is shown and no data
// comes back. Writes across files that an interrupted run left, finished or
// undone while opening, are told in a message.
AcilanVeri VeriAc(const QString& klasor);
