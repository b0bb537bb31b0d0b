#include "sayim_tutanak_kagidi.h"

#include "rapor_belgesi.h"
#include "sayim_tutanak.h"

namespace SayimTutanagi {

RaporKagidi Kagit(const RaporSuzgeci& s, const SabitSatiri& sabit)
{
    RaporKagidi k;
    k.ilkSayac = 8;
    k.sinir = 46;
    k.devam = 5;
    const QString donem = RaporBelgeleri::Donem(s);
    const QList<BasSatiri> ayiricilar = {{{{1, QString(106, u'-')}}, false}, {{{78, QString(138, u'-')}}, false}};
    // The band stands on the first page only.
    k.ilkBas = {{{{1, QStringLiteral("GİRİŞ")}, {130, donem}, {166, QStringLiteral("ÇIKIŞ")}}, false}};
    k.ilkBas += ayiricilar;
    k.ilkBas += QList<BasSatiri>{
        {{{0, QStringLiteral("       ")},
         {5, QStringLiteral("                              ")},
         {36, QStringLiteral("      ")},
         {44, QStringLiteral("KayıtlaraGöre")},
         {60, QStringLiteral("Ambardaki")},
         {70, QStringLiteral("KayıtdakiOrtak")},
         {85, QStringLiteral("OrtakKullanım")},
         {99, QStringLiteral("Kişilere ")},
         {109, QStringLiteral("Fazla ")},
         {118, QStringLiteral("Noksan")},
         {127, QStringLiteral("Açıklama")}}, true},
        {{{0, QStringLiteral("3.Detay Kod")},
         {15, QStringLiteral("TaşınırAdı    ")},
         {36, QStringLiteral("Birimi")},
         {44, QStringLiteral("AmbardakiMiktar")},
         {60, QStringLiteral("Miktar       ")},
         {70, QStringLiteral("KullanımMiktarı")},
         {85, QStringLiteral("Miktarı")},
         {99, QStringLiteral("Verilen ")},
         {109, QStringLiteral("Miktar")},
         {118, QStringLiteral("Miktar")},
         {127, QStringLiteral("Açıklama")}}, true}};
    // After a page break the minutes carry the ledger's headings, which do
    // not match their columns: that is how the form prints.
    k.devamBas = ayiricilar;
    k.devamBas += BasSatiri{{{0, QStringLiteral("Sıra")},          {5, QStringLiteral("Tarih    ")},
                   {15, QStringLiteral("FişNo")},        {22, QStringLiteral("İşlem Tür   ")},
                   {40, QStringLiteral("Miktar")},       {50, QStringLiteral("BirimFiyat")},
                   {69, QStringLiteral("Tutar")},        {78, QStringLiteral("Zimmet")},
                   {83, QStringLiteral("Tarih     ")},   {95, QStringLiteral("FişNo")},
                   {103, QStringLiteral("İşlem Tür")},   {117, QStringLiteral("Birim-Ünite  ")},
                   {136, QStringLiteral("Kime Verildiği")}, {154, QStringLiteral("Ozellik")},
                   {176, QStringLiteral("ÇıkanDeğer")}}, true};
    k.satir = [](const RaporSatiri& satir, int&) -> std::optional<KagitSatiri> {
        const QStringList& h = satir.hucreler;
        return KagitSatiri{{0, h.value(HesapKod)},
                           {15, h.value(MalzAdi).left(20)},
                           {36, h.value(Birimi).left(7)},
                           {44, RaporBelgeleri::Sagda(h.value(Kayitlara), 9)},
                           {60, RaporBelgeleri::Sagda(h.value(Ambardaki), 10)},
                           {70, RaporBelgeleri::Sagda(h.value(Ortak), 11)},
                           {85, h.value(OrtakKullanim)},
                           {99, h.value(Kisilere)},
                           {109, RaporBelgeleri::Sagda(h.value(Fazla), 5)},
                           {117, h.value(Noksan).left(10)},
                           {127, h.value(Aciklama).left(12)}};
    };
    k.kapanis = QList<KagitSatiri>{{}} + RaporBelgeleri::SayimKurulu(sabit)
                + QList<KagitSatiri>{{}, {{1, QStringLiteral("TMY Örnek. 12")}}};
    return k;
}

}
