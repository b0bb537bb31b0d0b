#pragma once

#include "dusum_liste_ekrani.h"

#include <QMap>

class QLabel;

// "Dayanıklı-Demirbaş Malzeme Liste": the durable goods lines that can still
// be written off. Enter or a double click on a row hands its cells to the
// write-off grid's current row and closes the list.
class Dusum_L1 : public DusumListeEkrani
{
    Q_OBJECT

public:
    explicit Dusum_L1(const CalismaBaglami& baglam, QWidget* parent = nullptr);

    void Guncelle() override;

signals:
    // The cells by DusumSutun column.
    void SatirSecildi(const QMap<int, QString>& hucreler);

protected:
    void Getir() override;
    void CiftTikla() override;
    void Yaz(Yazici& p, const Izgara& liste) override;
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    void Boyutlandir();

    QLabel* Boyut;
};
