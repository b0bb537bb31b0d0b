#pragma once

#include "fis_yazimi.h"
#include "sayfa_ekrani.h"

// The request slip of the lines that go out, from the voucher open on the
// screen; its kind mark follows the screen's Hangi (yazim.fis.Hangi).
class IstekYaz : public SayfaEkrani
{
    Q_OBJECT

public:
    IstekYaz(const CalismaBaglami& baglam, const FisYazimi& yazim, QWidget* ebeveyn = nullptr);
};
