#include "defter_kagidi.h"

#include "bicim.h"
#include "defter.h"
#include "rapor_belgesi.h"

namespace Defter {

namespace {

bool sifirDegil(const QString& hucre)
{
    return SayiDegeri(hucre).value_or(0) != 0;
}

}

RaporKagidi Kagit(const RaporSuzgeci& s, int satirSayi)
{
    RaporKagidi k;
    k.ilkSayac = 8;
    k.sinir = satirSayi;
    k.devam = 4;
    const QString donem = RaporBelgeleri::Donem(s);
    k.bant = [donem](int sayfaNo) {
        return KagitSatiri{{1, QStringLiteral("GİRİŞ")},
                           {130, donem},
                           {175, QStringLiteral("ÇIKIŞ")},
                           {185, QString::number(sayfaNo)}};
    };
    k.ayiricilar = {{{1, QString(108, u'-')}}, {{70, QString(202, u'-')}}};
    k.basliklar = {{0, QStringLiteral("Sıra")},        {6, QStringLiteral("Tarih   ")},
                   {15, QStringLiteral("FişNo")},      {22, QStringLiteral("İşlem Tür  ")},
                   {35, QStringLiteral("Miktar")},     {47, QStringLiteral("BirimFiyat")},
                   {60, QStringLiteral("Tutar")},      {71, QStringLiteral("Sıra ")},
                   {77, QStringLiteral("Tarih  ")},    {86, QStringLiteral("FişNo")},
                   {94, QStringLiteral("Ünite-Birim")}, {114, QStringLiteral("Miktar   ")},
                   {124, QStringLiteral("BirimFiyat")}, {136, QStringLiteral("ÇıkanDeğer")},
                   {150, QStringLiteral("KimeVerildiği")}, {171, QStringLiteral("Özellik")}};
    k.satir = [](const RaporSatiri& satir, int& sira) -> std::optional<KagitSatiri> {
        const QStringList& h = satir.hucreler;
        if (!sifirDegil(h.value(SolMiktar)) && !sifirDegil(h.value(SagMiktar)))
            return std::nullopt;
        // Sıra is counted again on paper: only rows with a left price get one.
        const QString no = h.value(SolFiyat).isEmpty() ? QString() : QString::number(++sira);
        return KagitSatiri{{0, no.left(4)},
                           {6, h.value(SolTarih)},
                           {17, RaporBelgeleri::Sagda(h.value(SolFisNo), 5)},
                           {23, h.value(IslemTur).left(9)},
                           {34, RaporBelgeleri::Sagda(h.value(SolMiktar), 9)},
                           {45, RaporBelgeleri::Sagda(h.value(SolFiyat), 10)},
                           {56, RaporBelgeleri::Sagda(h.value(SolTutar), 11)},
                           {72, h.value(SagSira)},
                           {76, h.value(SagTarih)},
                           {86, RaporBelgeleri::Sagda(h.value(SagFisNo), 5)},
                           {94, h.value(UniteAd).left(14)},
                           {114, h.value(SagMiktar).left(9)},
                           {124, RaporBelgeleri::Sagda(h.value(SagFiyat), 9)},
                           {136, RaporBelgeleri::Sagda(h.value(SagTutar), 11)},
                           {150, h.value(KimeVerildigi).left(20)},
                           {171, h.value(Ozellik).left(20)}};
    };
    return k;
}

const QStringList& Etiketler()
{
    static const QStringList etiketler = {
        QStringLiteral("İl ve İlçenin                     Adı  : "),
        QStringLiteral("Harcama Biriminin       Adı  : "),
        QStringLiteral("Ambarın                          Adı  : "),
        QStringLiteral("Muhasebe Biriminin     Adı  : "),
    };
    return etiketler;
}

}
