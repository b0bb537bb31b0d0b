#pragma once

#include "fis_yazimi.h"
#include "sayfa_ekrani.h"

// The custody slip of the durable goods of the voucher open on the screen.
class ZimmetYaz : public SayfaEkrani
{
    Q_OBJECT

public:
    ZimmetYaz(const CalismaBaglami& baglam, const FisYazimi& yazim, QWidget* ebeveyn = nullptr);
};
