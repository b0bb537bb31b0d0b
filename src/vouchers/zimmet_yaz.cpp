#include "zimmet_yaz.h"

#include "sabit_kayit.h"
#include "zimmet_sayfasi.h"

ZimmetYaz::ZimmetYaz(const CalismaBaglami& baglam, const FisYazimi& yazim, QWidget* ebeveyn)
    : SayfaEkrani(baglam, QStringLiteral("Zimmet Fişi Yazdırma"), ebeveyn)
{
    SabitSatiri sabit;
    // Without the constants the slip still shows the voucher's own texts.
    Komut([&] { sabit = SabitKayit::Getir(Genel()).value_or(SabitSatiri()); });
    SayfaGoster(ZimmetSayfasi(yazim, sabit));
}
