#pragma once

#include <QString>

class Izgara;
class Yazici;

// Millimetres to twips as the system counts them.
inline constexpr double MmTwip = 56.5;

// Prints the text with its top-left corner at (x, y) millimetres. On a
// printer failure it prints nothing and answers false.
bool KonumYaz(Yazici& p, double x, double y, const QString& metin);

// Prints the grid under the title, 53 lines a page with the heading row in
// bold at the top of each; hidden columns (narrower than 101 twips) take no
// room and the first row with an empty first cell ends the list. The caller
// ends the document. A printer failure throws YaziciHatasi: the caller shows
// its Mesaj() with the critical icon and drops the document with KillDoc.
void GridYazdir(Yazici& p, const QString& baslik, const Izgara& izgara);

// The same for wide grids: no title, 8.5 points, and the list ends at the
// first row with an empty second cell.
void GridYazdirGenis(Yazici& p, const Izgara& izgara);
