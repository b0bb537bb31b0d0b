#pragma once

// The count and inventory table of sayim_cetveli.h on the panel of the
// account tables (yil_devri_ekrani.h), with the one first-level code.

#include "rapor_listeleri.h"
#include "yil_devri_ekrani.h"

class QComboBox;

// The count and inventory table TMY-13: one row a second-level class, for
// the main account chosen on T2 or for all.
class SayimCetveli : public YilDevriEkrani
{
    Q_OBJECT

public:
    explicit SayimCetveli(const CalismaBaglami& baglam, QWidget* parent = nullptr);

protected:
    RaporTablosu Hesapla(const RaporSuzgeci& s, const QString& anaHesap) override;
    RaporKagidi Kagit() const override;
    QStringList Etiketler() const override;

private:
    QList<RaporListeleri::KodAd> m_altHesaplar;
    QComboBox* HesapNo4;
};
