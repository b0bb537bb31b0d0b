#pragma once

#include <QString>

// A screen that opens the class screen to add a class in the middle of its
// work and takes the saved class back (the voucher screen, Hangi "Fis_K2").
class SinifAlici
{
public:
    virtual ~SinifAlici() = default;

    // The class list it offers is read again: the new class is in it.
    virtual void SinifListesiYenile() = 0;
    // The class goes into the current row of the line grid: the code to
    // column 1, the name to 2, the unit to 4, the tax rate to 15; the grid
    // moves to column 3.
    virtual void SinifAl(const QString& hesapKod, const QString& malzAdi, const QString& birimi,
                         const QString& kdv) = 0;
    // Called when the class screen closes.
    virtual void OdakAl() = 0;
};
