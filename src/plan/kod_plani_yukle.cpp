#include "kod_plani_yukle.h"

#include "dosyalar_arasi.h"
#include "kod_listesi_oku.h"
#include "veri.h"
#include "veritabani.h"

namespace {

// The reference plan's rows of one code, as statements that give the same
// rows when run again: the name replaced where the code is, the row added
// where it is not.
QList<DosyalarArasi::Komut> referansKomutlari(const KodSatiri& s)
{
    QStringList gruplar = s.kod.split(u' ');
    while (gruplar.size() < 6)
        gruplar.append(QStringLiteral(""));  // empty, not NULL
    const QVariantList alanlar(gruplar.cbegin(), gruplar.cbegin() + 6);
    const QString alanKosulu =
        QStringLiteral("Alan1 = ? and Alan2 = ? and Alan3 = ? and Alan4 = ? and Alan5 = ? and Alan6 = ?");
    return {
        {Dosya::HesapKod, QStringLiteral("update HesapKod1 set Alan7 = ? where ") + alanKosulu,
         QVariantList{s.ad} + alanlar},
        {Dosya::HesapKod,
         QStringLiteral("insert into HesapKod1 (Alan1, Alan2, Alan3, Alan4, Alan5, Alan6, Alan7) "
                        "select ?, ?, ?, ?, ?, ?, ? where not exists (select 1 from HesapKod1 where ")
             + alanKosulu + u')',
         alanlar + QVariantList{s.ad} + alanlar},
        {Dosya::HesapKod, QStringLiteral("update HesapKod2 set HesapAd = ?, MalzAdi = ? where HesapKod = ?"),
         {s.ad, s.ad, s.kod}},
        {Dosya::HesapKod,
         QStringLiteral("insert into HesapKod2 (HesapKod, HesapAd, MalzAdi) select ?, ?, ? "
                        "where not exists (select 1 from HesapKod2 where HesapKod = ?)"),
         {s.kod, s.ad, s.ad, s.kod}},
    };
}

}

KodPlaniSonucu KodPlaniYukle(Veri& veri, const QString& dosya)
{
    const QList<KodSatiri> satirlar = KodListesiOku(dosya);
    Veritabani& vt = veri.Genel();
    KodPlaniSonucu sonuc;
    QList<DosyalarArasi::Komut> referans;
    qint64 kayit = 0;
    {
        // The plan and the record of the reference plan's rows commit
        // together; the reference plan follows, and is finished at the next
        // opening if the run ends before.
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
            referans += referansKomutlari(s);
        }
        kayit = DosyalarArasi::Kaydet(vt, QStringLiteral("Hesap planı yüklemesi (%1 kod)").arg(satirlar.size()),
                                      false, referans);
        islem.Onayla();
    }
    DosyalarArasi::Uygula(veri, kayit);
    return sonuc;
}
