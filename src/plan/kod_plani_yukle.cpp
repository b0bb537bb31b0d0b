#include "kod_plani_yukle.h"

#include "dosyalar_arasi.h"
#include "veri.h"
#include "veritabani.h"

namespace {

const QString alanKosulu =
    QStringLiteral(" where Alan1 = ? and Alan2 = ? and Alan3 = ? and Alan4 = ? and Alan5 = ? and Alan6 = ?");

// The code's groups as the six code fields of HesapKod1.
QVariantList alanlar(const QString& kod)
{
    QStringList gruplar = kod.split(u' ');
    while (gruplar.size() < 6)
        gruplar.append(QStringLiteral(""));  // empty, not NULL
    return QVariantList(gruplar.cbegin(), gruplar.cbegin() + 6);
}

// What takes the reference plan's rows of the code back to where they are
// now: the old name again, or no row.
QList<DosyalarArasi::Komut> geriAlma(Veritabani& hk, const QString& kod)
{
    QList<DosyalarArasi::Komut> geri;
    const QVariantList alan = alanlar(kod);
    const QList<QStringList> eski1 = hk.Satirlar(QStringLiteral("select Alan7 from HesapKod1") + alanKosulu, alan);
    if (eski1.isEmpty())
        geri << DosyalarArasi::Komut{Dosya::HesapKod, QStringLiteral("delete from HesapKod1") + alanKosulu, alan};
    else
        geri << DosyalarArasi::Komut{Dosya::HesapKod, QStringLiteral("update HesapKod1 set Alan7 = ?") + alanKosulu,
                                     QVariantList{eski1[0][0]} + alan};
    const QList<QStringList> eski2 =
        hk.Satirlar(QStringLiteral("select HesapAd, MalzAdi from HesapKod2 where HesapKod = ?"), {kod});
    if (eski2.isEmpty())
        geri << DosyalarArasi::Komut{Dosya::HesapKod, QStringLiteral("delete from HesapKod2 where HesapKod = ?"),
                                     {kod}};
    else
        geri << DosyalarArasi::Komut{Dosya::HesapKod,
                                     QStringLiteral("update HesapKod2 set HesapAd = ?, MalzAdi = ? where HesapKod = ?"),
                                     {eski2[0][0], eski2[0][1], kod}};
    return geri;
}

}

KodPlaniSonucu KodPlaniYukle(Veri& veri, const QString& dosya)
{
    KodPlaniSonucu sonuc;
    const QList<KodSatiri> satirlar = KodListesiOku(dosya, &sonuc.okunan);
    Veritabani& vt = veri.Genel();
    Veritabani& hk = veri.HesapKod();
    // The reference plan is written first, under a record that takes it back
    // until the plan is in.
    QList<DosyalarArasi::Komut> geri;
    for (const KodSatiri& s : satirlar)
        geri += geriAlma(hk, s.kod);
    const qint64 kayit = DosyalarArasi::Kaydet(
        vt, QStringLiteral("Hesap planı yüklemesi (%1 kod)").arg(satirlar.size()), geri);
    DosyalarArasi::Yaz(veri, kayit, [&] {
        {
            Islem islem(hk);
            for (const KodSatiri& s : satirlar) {
                const QVariantList alan = alanlar(s.kod);
                if (hk.Hazir(QStringLiteral("update HesapKod1 set Alan7 = ?") + alanKosulu)
                        .Calistir(QVariantList{s.ad} + alan)
                    == 0)
                    hk.Hazir(QStringLiteral("insert into HesapKod1 (Alan1, Alan2, Alan3, Alan4, Alan5, Alan6, "
                                            "Alan7) values (?, ?, ?, ?, ?, ?, ?)"))
                        .Calistir(alan + QVariantList{s.ad});
                if (hk.Hazir(QStringLiteral("update HesapKod2 set HesapAd = ?, MalzAdi = ? where HesapKod = ?"))
                        .Calistir({s.ad, s.ad, s.kod})
                    == 0)
                    hk.Hazir(QStringLiteral("insert into HesapKod2 (HesapKod, HesapAd, MalzAdi) values (?, ?, ?)"))
                        .Calistir({s.kod, s.ad, s.ad});
            }
            islem.Onayla();
        }
        Islem islem(vt);
        for (const KodSatiri& s : satirlar) {
            QSqlQuery var = vt.Sorgu(QStringLiteral("select HesapAd from HESAP_K where HesapKod = ?"), {s.kod});
            if (!var.next()) {
                vt.Hazir(QStringLiteral("insert into HESAP_K (HesapKod, HesapAd, HesapNo, AnaHesapNo, AnaBolum)"
                                        " values (?, ?, '', ?, ?)"))
                    .Calistir({s.kod, s.ad, s.kod.left(3).toInt(), s.kod.size() == 3 ? 0 : 1});
                ++sonuc.eklenen;
            } else if (var.value(0).toString() != s.ad) {
                vt.Hazir(QStringLiteral("update HESAP_K set HesapAd = ? where HesapKod = ?")).Calistir({s.ad, s.kod});
                ++sonuc.adiDegisen;
            } else {
                ++sonuc.ayni;
            }
        }
        DosyalarArasi::Sil(vt, kayit);
        islem.Onayla();
    });
    return sonuc;
}
