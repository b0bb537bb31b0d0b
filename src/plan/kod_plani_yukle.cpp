#include "kod_plani_yukle.h"

#include "kod_listesi_oku.h"
#include "veri.h"
#include "veritabani.h"

KodPlaniSonucu KodPlaniYukle(Veri& veri, const QString& dosya)
{
    const QList<KodSatiri> satirlar = KodListesiOku(dosya);
    Veritabani& vt = veri.Genel();
    // The reference plan lives in its own file; attached to the plan's
    // connection for this load, one transaction covers both.
    vt.Calistir(QStringLiteral("ATTACH DATABASE ? AS hk"), {veri.HesapKod().Yol()});
    struct Ayir
    {
        Veritabani& vt;
        ~Ayir()
        {
            try {
                vt.Calistir(QStringLiteral("DETACH DATABASE hk"));
            } catch (const VeriHatasi&) {
                // Stays attached until the connection closes; nothing is lost.
            }
        }
    } ayir{vt};
    KodPlaniSonucu sonuc;
    {
        Islem islem(vt);
        for (const KodSatiri& s : satirlar) {
            QSqlQuery var = vt.Sorgu(QStringLiteral("select HesapAd from HESAP_K where HesapKod = ?"), {s.kod});
            if (!var.next()) {
                vt.Calistir(QStringLiteral("insert into HESAP_K (HesapKod, HesapAd, HesapNo, AnaHesapNo, AnaBolum)"
                                           " values (?, ?, '', ?, ?)"),
                            {s.kod, s.ad, s.kod.left(3).toInt(), s.kod.size() == 3 ? 0 : 1});
                ++sonuc.eklenen;
            } else if (var.value(0).toString() != s.ad) {
                vt.Calistir(QStringLiteral("update HESAP_K set HesapAd = ? where HesapKod = ?"), {s.ad, s.kod});
                ++sonuc.adiDegisen;
            } else {
                ++sonuc.ayni;
            }

            QStringList gruplar = s.kod.split(u' ');
            while (gruplar.size() < 6)
                gruplar.append(QStringLiteral(""));  // empty, not NULL
            const QVariantList alanlar(gruplar.cbegin(), gruplar.cbegin() + 6);
            if (vt.Calistir(QStringLiteral("update hk.HesapKod1 set Alan7 = ? where Alan1 = ? and Alan2 = ? and "
                                           "Alan3 = ? and Alan4 = ? and Alan5 = ? and Alan6 = ?"),
                            QVariantList{s.ad} + alanlar)
                == 0)
                vt.Calistir(QStringLiteral("insert into hk.HesapKod1 (Alan1, Alan2, Alan3, Alan4, Alan5, Alan6, "
                                           "Alan7) values (?, ?, ?, ?, ?, ?, ?)"),
                            alanlar + QVariantList{s.ad});
            if (vt.Calistir(QStringLiteral("update hk.HesapKod2 set HesapAd = ?, MalzAdi = ? where HesapKod = ?"),
                            {s.ad, s.ad, s.kod})
                == 0)
                vt.Calistir(QStringLiteral("insert into hk.HesapKod2 (HesapKod, HesapAd, MalzAdi) values (?, ?, ?)"),
                            {s.kod, s.ad, s.ad});
        }
        islem.Onayla();
    }
    return sonuc;
}
