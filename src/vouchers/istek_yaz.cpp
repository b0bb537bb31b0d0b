#include "istek_yaz.h"

#include "istek_sayfasi.h"
#include "sabit_kayit.h"

IstekYaz::IstekYaz(const CalismaBaglami& baglam, const FisYazimi& yazim, QWidget* ebeveyn)
    : SayfaEkrani(baglam, QStringLiteral("İstek Belgesi Yazdırma"), ebeveyn)
{
    SabitSatiri sabit;
    // Without the constants the slip still shows the voucher's own texts.
    Komut([&] { sabit = SabitKayit::Getir(Genel()).value_or(SabitSatiri()); });
    SayfaGoster(IstekSayfasi(yazim, sabit));
}
