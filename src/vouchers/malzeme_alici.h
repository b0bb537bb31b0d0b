#pragma once

#include <QString>

// A screen that takes a line picked from the material list (the voucher
// screen, Hangi "Fis_K").
class MalzemeAlici
{
public:
    virtual ~MalzemeAlici() = default;

    // The picked line's class name, description, code, unit price, unit and
    // tax rate, with the list's totals of its description.
    virtual void MalzemeAl(const QString& malzAdi, const QString& ozellik, const QString& hesapKod,
                           const QString& birimFiyat, const QString& birimi, const QString& kdv,
                           const QString& gelen, const QString& cikan, const QString& kalan) = 0;
};
