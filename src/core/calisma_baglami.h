#pragma once

#include <QString>

class Veri;

// The working context the menu hands to a screen when it opens it. The
// screen keeps its copy: a change on the menu reaches only screens opened
// afterwards.
struct CalismaBaglami
{
    QString CalisYil;  // as typed on the menu; Val reads it
    QString CalisAy;
    QString Baslik;    // the institution's name
    Veri* Veriler = nullptr;  // the data files, held for the run
};
