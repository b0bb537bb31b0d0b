#include "dayanik_liste_kagidi.h"

#include "dayanik_liste.h"
#include "rapor_belgesi.h"

namespace DayanikListesi {

RaporKagidi Kagit(const RaporSuzgeci& s, const QString& hangi)
{
    RaporKagidi k;
    k.ilkSayac = 8;
    k.sinir = 46;
    k.devam = 5;
    const QString donem = RaporBelgeleri::Donem(s);
    k.bant = [donem](int) { return KagitSatiri{{1, donem}}; };
    k.ayiricilar = {{{1, QString(106, u'-')}}};
    k.basliklar = {{0, QStringLiteral("Sıra")},
                   {5, QStringLiteral("Tarih    ")},
                   {15, QStringLiteral("FişNo")},
                   {22, QStringLiteral("Malzeme Adı   ")},
                   {43, QStringLiteral("Ozellik ")},
                   {63, QStringLiteral("Miktar")},
                   {73, hangi == u"D" ? QStringLiteral("Sicil No") : QString(8, u' ')},
                   {88, QStringLiteral("Kime Verildiği")}};
    // The form prints KimeVerildigi under "Sicil No" and SicilNo under
    // "Kime Verildiği".
    k.satir = [](const RaporSatiri& satir, int& sira) -> std::optional<KagitSatiri> {
        const QStringList& h = satir.hucreler;
        // Sıra is counted again on paper: a row without a quantity gets none.
        const QString no = h.value(Miktar).isEmpty() ? QString() : QString::number(++sira);
        return KagitSatiri{{0, no.left(4)},
                           {5, h.value(Tarih)},
                           {16, RaporBelgeleri::Sagda(h.value(FisNo), 5)},
                           {22, h.value(MalzAdi).left(20)},
                           {43, h.value(Ozellik).left(20)},
                           {63, RaporBelgeleri::Sagda(h.value(Miktar), 9)},
                           {73, RaporBelgeleri::Sagda(h.value(KimeVerildigi), 15)},
                           {88, h.value(SicilNo)}};
    };
    return k;
}

RaporKagidi Kagit2()
{
    RaporKagidi k;
    k.ayiricilar = {{{1, QString(106, u'-')}}};
    k.basliklar = {{1, QStringLiteral("Tarih")},      {12, QStringLiteral("FişNo")},
                   {19, QStringLiteral("Hesap Kod")}, {34, QStringLiteral("Özellik")},
                   {56, QStringLiteral("Sicil No")},  {70, QStringLiteral("Miktar")},
                   {82, QStringLiteral("Kime Verildiği")}};
    k.satir = [](const RaporSatiri& satir, int&) -> std::optional<KagitSatiri> {
        const QStringList& h = satir.hucreler;
        return KagitSatiri{{1, h.value(Tarih2)},
                           {12, RaporBelgeleri::Sagda(h.value(FisNo2), 5)},
                           {19, h.value(HesapKod2)},
                           {34, h.value(Ozellik2).left(20)},
                           {56, h.value(SicilNo2).left(12)},
                           {68, RaporBelgeleri::Sagda(h.value(Miktar2), 9)},
                           {82, h.value(KimeVerildigi2).left(24)}};
    };
    return k;
}

const QStringList& Etiketler()
{
    static const QStringList etiketler = RaporBelgeleri::Etiketler() + QStringList{QStringLiteral("  Ölçü Birimi  : ")};
    return etiketler;
}

}
