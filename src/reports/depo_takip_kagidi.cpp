#include "depo_takip_kagidi.h"

#include "depo_takip.h"
#include "rapor_belgesi.h"

namespace DepoTakibi {

RaporKagidi Kagit()
{
    RaporKagidi k;
    k.ilkSayac = 8;
    k.sinir = 57;
    k.devam = 5;
    k.ayiricilar = {{{1, QString(126, u'-')}}};
    k.basliklar = {{5, QStringLiteral("3.Detay Kod")},
                   {25, QStringLiteral("Taşınır Adı    ")},
                   {64, QStringLiteral("Gelen ")},
                   {79, QStringLiteral("Çıkan ")},
                   {95, QStringLiteral("Kullanımda          ")},
                   {114, QStringLiteral("Ambarda Kalan             ")}};
    k.sayfaNoBaslikta = true;
    // The first amount is cut, not aligned.
    k.satir = [](const RaporSatiri& satir, int&) -> std::optional<KagitSatiri> {
        const QStringList& h = satir.hucreler;
        return KagitSatiri{{5, h.value(HesapKod)},
                           {25, h.value(Ozellik).left(27)},
                           {65, h.value(Gelen).left(7)},
                           {79, RaporBelgeleri::Sagda(h.value(Cikan), 9)},
                           {95, RaporBelgeleri::Sagda(h.value(Kullanimda), 10)},
                           {113, RaporBelgeleri::Sagda(h.value(AmbardaKalan), 10)}};
    };
    return k;
}

}
