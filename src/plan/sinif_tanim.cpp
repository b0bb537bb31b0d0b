#include "sinif_tanim.h"

#include "bicim.h"
#include "izgara.h"
#include "kayit.h"
#include "tek_deger.h"
#include "veritabani.h"
#include "yazici.h"

namespace {

QList<QStringList> planSatirlari(Veritabani& vt, const QString& sql, const QString& ust)
{
    QSqlQuery sorgu = vt.Sorgu(sql, {ust});
    QList<QStringList> satirlar;
    QString onceki;
    while (sorgu.next()) {
        const QString kod = sorgu.value(0).toString().trimmed();
        const QString ad = sorgu.value(1).toString().trimmed();
        if (kod != onceki && !ad.isEmpty())
            satirlar.append({kod, ad});
        onceki = kod;
    }
    return satirlar;
}

const QString kodSorgusu = QStringLiteral("Select * from URUN_K where HesapKod = ? ");

// Lines on a page before the next one begins, and the count a later page
// starts from, its heading included.
constexpr int sayfaSatiri = 46;
constexpr int sonrakiSayfaBasi = 5;

}

const QList<QStringList>& SinifTanim::AnaSiniflar()
{
    static const QList<QStringList> siniflar{
        {QStringLiteral("150"), QStringLiteral("İlkmadde-Malzeme")},
        {QStringLiteral("253"), QStringLiteral("Tesis-Cihazlar")},
        {QStringLiteral("254"), QStringLiteral("Taşıtlar")},
        {QStringLiteral("255"), QStringLiteral("Demirbaşlar")},
    };
    return siniflar;
}

QList<QStringList> SinifTanim::BirinciDetaylar(Veritabani& vt, const QString& anaKod)
{
    return planSatirlari(vt,
                         QStringLiteral("Select HesapKod, HesapAd From HESAP_K where Mid(HesapKod,1,3) = ? and "
                                        "Mid(HesapKod,6,1) <> '' and Mid(HesapKod,8,1) = ''"),
                         anaKod);
}

QList<QStringList> SinifTanim::IkinciDetaylar(Veritabani& vt, const QString& birinciKod)
{
    return planSatirlari(vt,
                         QStringLiteral("Select HesapKod, HesapAd From HESAP_K where Mid(HesapKod,1,6) = ? and "
                                        "Mid(HesapKod,11,1) = '' and Mid(HesapKod,9,1) <> '' "),
                         birinciKod);
}

QString SinifTanim::SonrakiKod(Veritabani& vt, const QString& tiklananMetin)
{
    const QString ust = tiklananMetin.trimmed();
    const QString enBuyuk =
        EnBuyukMetin(vt, QStringLiteral("URUN_K"), QStringLiteral("HesapKod"),
                     QStringLiteral(" where mid(HesapKod,1,9) = ? "), {ust});
    if (enBuyuk.isEmpty())
        return ust + QStringLiteral(" 001");
    const double sayi = Val(enBuyuk.mid(10, 3)) + 1;
    return enBuyuk.left(10) + Format(sayi, QStringLiteral("0##"));
}

std::optional<SinifSatiri> SinifTanim::Getir(Veritabani& vt, const QString& hesapKod)
{
    QSqlQuery sorgu = vt.Sorgu(kodSorgusu, {hesapKod.trimmed()});
    if (!sorgu.next())
        return std::nullopt;
    const QVariant stok = sorgu.value(QStringLiteral("Stok"));
    return SinifSatiri{
        sorgu.value(QStringLiteral("HesapKod")).toString(),
        sorgu.value(QStringLiteral("MalzAdi")).toString().trimmed(),
        sorgu.value(QStringLiteral("Birimi")).toString(),
        sorgu.value(QStringLiteral("KDV1")).toString(),
        sorgu.value(QStringLiteral("Barkod")).toString(),
        stok.isNull() ? QString() : SayiMetni(stok),
        sorgu.value(QStringLiteral("EskiKod")).toString(),
    };
}

bool SinifTanim::Var(Veritabani& vt, const QString& hesapKod)
{
    return vt.Sorgu(kodSorgusu, {hesapKod.trimmed()}).next();
}

void SinifTanim::Kaydet(Veritabani& vt, const SinifSatiri& s)
{
    const QString kod = s.HesapKod.trimmed();
    // Columns in the order of the table; the key comes last for the update.
    const QVariantList degerler{kod,
                                s.MalzAdi.trimmed(),
                                s.Birimi.trimmed().left(8),
                                s.KDV1.trimmed().left(5),
                                s.Barkod.trimmed().left(25),
                                Val(s.Stok),
                                s.EskiKod.trimmed(),
                                kod};
    Islem islem(vt);
    if (vt.Sorgu(kodSorgusu, {kod}).next())
        vt.Calistir(QStringLiteral("update URUN_K set HesapKod = ?, MalzAdi = ?, Birimi = ?, KDV1 = ?, Barkod = ?, "
                                   "Stok = ?, EskiKod = ? where HesapKod = ?"),
                    degerler);
    else
        vt.Calistir(QStringLiteral("insert into URUN_K (HesapKod, MalzAdi, Birimi, KDV1, Barkod, Stok, EskiKod) "
                                   "values (?, ?, ?, ?, ?, ?, ?)"),
                    degerler.mid(0, 7));
    islem.Onayla();
}

void SinifTanim::Sil(Veritabani& vt, const QString& hesapKod)
{
    vt.Calistir(QStringLiteral("Delete From URUN_K Where HesapKod = ? "), {hesapKod.trimmed()});
}

bool SinifTanim::Sil2(Veritabani& vt, const QString& hesapKod, const QString& malzAdi,
                      const QString& eskiKod)
{
    if (!hesapKod.isEmpty())
        return false;
    vt.Calistir(
        QStringLiteral("Delete From URUN_K Where MalzAdi = ? COLLATE TR And EskiKod = ? COLLATE TR "
                       "And \"IsNull\"(HesapKod) "),
        {malzAdi.trimmed(), eskiKod.trimmed()});
    return true;
}

const QStringList& SinifTanim::Basliklar()
{
    static const QStringList basliklar{QStringLiteral("3.Detay Kod"), QStringLiteral("Malzeme Sınıf Adı"),
                                       QStringLiteral("KDV"), QStringLiteral("Eski Kod ")};
    return basliklar;
}

const QList<int>& SinifTanim::Genislikler()
{
    static const QList<int> genislikler{1400, 4500, 600, 1000};
    return genislikler;
}

QList<QStringList> SinifTanim::Liste(Veritabani& vt, const QString& hesapNo1, const QString& malzemeAd1,
                                     const QString& eskiKod1, Sira sira)
{
    QString kosul;
    QVariantList degerler;
    const auto suz = [&](const QString& alan, const QString& metin) {
        if (metin.trimmed().isEmpty())
            return;
        kosul = QStringLiteral(" where %1 like ? ").arg(alan);
        degerler = {metin.trimmed() + QStringLiteral("%")};
    };
    suz(QStringLiteral("HesapKod"), hesapNo1);
    suz(QStringLiteral("MalzAdi"), malzemeAd1);
    suz(QStringLiteral("EskiKod"), eskiKod1);
    const QString sirala = sira == Sira::HesapKod  ? QStringLiteral("HesapKod")
                           : sira == Sira::MalzAdi ? QStringLiteral("MalzAdi COLLATE TR")
                                                   : QStringLiteral("EskiKod COLLATE TR");
    return vt.Satirlar(QStringLiteral("Select HesapKod, MalzAdi, Kdv1, EskiKod from URUN_K ") + kosul
                           + QStringLiteral(" order by ") + sirala,
                       degerler);
}

void SinifTanim::ListeYazdir(Yazici& p, const Izgara& izgara)
{
    int sayac = 0;
    for (int r = 1; r < izgara.Rows(); ++r) {
        p.Print({Tab(2), izgara.TextMatrix(r, 0), Tab(25), izgara.TextMatrix(r, 1).left(52), Tab(77),
                 izgara.TextMatrix(r, 2)});
        if (++sayac > sayfaSatiri) {
            p.NewPage();
            p.Print({Tab(0), izgara.TextMatrix(0, 0), Tab(23), izgara.TextMatrix(0, 1), Tab(65),
                     izgara.TextMatrix(0, 2)});
            sayac = sonrakiSayfaBasi;
        }
    }
    p.EndDoc();
}
