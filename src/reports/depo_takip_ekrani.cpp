#include "depo_takip_ekrani.h"

#include "depo_takip.h"
#include "depo_takip_kagidi.h"

DepoTakip::DepoTakip(const CalismaBaglami& baglam, QWidget* parent)
    : OzellikEkrani(baglam, DepoTakibi::Ozellik, QStringLiteral("    Kayıt Bulunamadı   ...    "), parent)
{
    GonderildiMesaji = QStringLiteral(" Yazıcıya Gönderildi. ");
    setWindowTitle(QStringLiteral("Depo Takip"));
}

RaporTablosu DepoTakip::Hesapla(const RaporSuzgeci& s, bool biteniGoster)
{
    return DepoTakibi::Tablo(Ayniyat(), s, biteniGoster);
}

RaporKagidi DepoTakip::Kagit() const
{
    return DepoTakibi::Kagit();
}
