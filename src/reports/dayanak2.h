#pragma once

// The second durable goods list of dayanik_liste.h (Liste2) and its paper
// (dayanik_liste_kagidi.h) on the report frame.

#include "dayanik_liste.h"
#include "rapor_ekrani.h"

class QComboBox;
class QLabel;

// "Dayanaklı Liste  Raporlama": every durable line of one unit, chosen by
// its name, of all dates.
class Dayanak2 : public RaporEkrani
{
    Q_OBJECT

public:
    explicit Dayanak2(const CalismaBaglami& baglam, QWidget* parent = nullptr);

    // The list of the unit chosen in UniteAd1.
    void Toplu() override;

protected:
    RaporKagidi Kagit() const override;
    QStringList Etiketler() const override;
    // F5: the list of the chosen unit read again.
    void Command3Calistir() override;

private:
    QLabel* Baslik;
    QLabel* UniteNo;
    QLabel* UniteAd;
    QComboBox* UniteAd1;
};
