#include "depo_takip.h"

#include "devir_teslim.h"
#include "kayit.h"
#include "rapor_belgesi.h"

namespace DepoTakibi {

RaporTablosu Tablo(Veritabani& ayniyat, const RaporSuzgeci& panel, bool biteniGoster)
{
    const RaporSuzgeci s = DevirTeslimTutanagi::Suzgec(panel);
    RaporTablosu t;
    t.baslik = QStringLiteral("   D E P O   T A K İ P   ");
    t.ustBilgi = {{{2, QStringLiteral("Depo Takip            ") + RaporBelgeleri::Donem(s)}}};
    t.sutunlar = Sutunlar();
    const DevirTeslimTutanagi::Satirlar satirlar = DevirTeslimTutanagi::Oku(ayniyat, s);
    if (satirlar.malzemeler.isEmpty())
        return t;

    QString ozellik = satirlar.malzemeler.first().ozellik;
    QString kod;
    // C every issue, D the issues of write-off lines.
    double gelen = 0, C = 0, D = 0;
    const auto ekle = [&] {
        QStringList h(HucreSayisi);
        h[HesapKod] = kod;
        h[Ozellik] = ozellik;
        h[Gelen] = ParaYaz(gelen);
        h[Cikan] = ParaYaz(C + D);
        h[Kullanimda] = ParaYaz(gelen - D);
        h[AmbardaKalan] = ParaYaz(gelen - C);
        t.satirlar.append({SatirTuru::Kayit, h});
    };
    for (const DevirTeslimTutanagi::Malzeme& m : satirlar.malzemeler) {
        const bool yeni = !m.ozellik.isEmpty() && m.ozellik != ozellik;
        if (yeni && !ozellik.isEmpty() && (biteniGoster || gelen - C != 0))
            ekle();
        // So the lines without a description count nowhere.
        if (yeni)
            gelen = C = D = 0;
        ozellik = m.ozellik;
        kod = m.sonHesapKod;
        for (const DevirTeslimTutanagi::FisSatiri& f : m.satirlar) {
            gelen += f.miktar;
            if (f.dusum)
                D += f.cikan;
            C += f.cikan;
        }
    }
    if (!ozellik.isEmpty())
        ekle();
    return t;
}

const QList<RaporSutunu>& Sutunlar()
{
    const auto sag = Qt::AlignRight;
    static const QList<RaporSutunu> sutunlar = {
        {QString(), 200},
        {QStringLiteral("3.Detay Kod"), 1400},
        {QStringLiteral("Taşınır Adı"), 3000},
        {QStringLiteral("Gelen"), 1300, sag, true},
        {QStringLiteral("Çıkan"), 1300, sag, true},
        {QStringLiteral("Kullanımda"), 1300, sag, true},
        {QStringLiteral("Ambarda Kalan"), 1400, sag, true}};
    return sutunlar;
}

}
