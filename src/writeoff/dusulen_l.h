#pragma once

#include "dusum_liste_ekrani.h"

// "Düşüm Tutanak Listesi": the write-offs made. Enter on a row hands its
// number to the write-off screen; a double click does so and closes the list.
class Dusulen_L : public DusumListeEkrani
{
    Q_OBJECT

public:
    explicit Dusulen_L(const CalismaBaglami& baglam, QWidget* parent = nullptr);

    void Guncelle() override;

signals:
    void DusumSecildi(const QString& fisNo);

protected:
    void Getir() override;
    void CiftTikla() override;
    void Yaz(Yazici& p, const Izgara& liste) override;
};
