#include "hesap_plani.h"

#include "izgara.h"
#include "kayit.h"
#include "sayfa.h"
#include "veritabani.h"
#include "yazici.h"

namespace {

QSqlQuery satirOku(Veritabani& vt, const QString& hesapKod)
{
    return vt.Sorgu(QStringLiteral("Select * from HESAP_K where HesapKod =? "), {hesapKod.trimmed()});
}

// The stepped code as the run-time converted it: a whole number, blanks
// around it allowed.
qlonglong kodSayisi(const QString& hesapKod)
{
    bool sayi = false;
    const qlonglong deger = hesapKod.trimmed().toLongLong(&sayi);
    if (!sayi)
        throw Hata(QStringLiteral("Hesap Kod sayı olmadığından bir artırılıp azaltılamaz."));
    return deger;
}

}

QList<QStringList> HesapPlani::Liste(Veritabani& vt, const QString& kodSuzgeci, const QString& adSuzgeci,
                                     Sira sira)
{
    QString kosul;
    QVariantList degerler;
    if (!kodSuzgeci.trimmed().isEmpty()) {
        kosul = QStringLiteral(" where HesapKod like ? ");
        degerler = {kodSuzgeci.trimmed() + u'*'};
    }
    if (!adSuzgeci.trimmed().isEmpty()) {
        kosul = QStringLiteral(" where HesapAd like ? ");
        degerler = {adSuzgeci.trimmed() + u'*'};
    }
    const QString sirala = sira == Sira::HesapKod ? QStringLiteral("HesapKod") : QStringLiteral("HesapAd COLLATE TR");
    return vt.Satirlar(QStringLiteral("Select HesapKod, HesapAd from HESAP_K ") + kosul
                               + QStringLiteral(" order by ") + sirala,
                           degerler);
}

std::optional<QString> HesapPlani::Getir(Veritabani& vt, const QString& hesapKod)
{
    QSqlQuery q = satirOku(vt, hesapKod);
    if (!q.next())
        return std::nullopt;
    return q.value(QStringLiteral("HesapAd")).toString().trimmed();
}

void HesapPlani::Kaydet(Veritabani& vt, const QString& hesapKod, const QString& hesapAd)
{
    const QVariantList degerler{hesapKod.trimmed(), hesapAd.trimmed()};
    Islem islem(vt);
    if (satirOku(vt, hesapKod).next())
        vt.Calistir(QStringLiteral("update HESAP_K set HesapKod = ?, HesapAd = ? where HesapKod = ?"),
                    degerler + QVariantList{hesapKod.trimmed()});
    else
        vt.Calistir(QStringLiteral("insert into HESAP_K (HesapKod, HesapAd) values (?, ?)"), degerler);
    islem.Onayla();
}

bool HesapPlani::Var(Veritabani& vt, const QString& hesapKod)
{
    return satirOku(vt, hesapKod).next();
}

void HesapPlani::Sil(Veritabani& vt, const QString& hesapKod)
{
    vt.Calistir(QStringLiteral("Delete From HESAP_K Where HesapKod = ? "), {hesapKod});
}

HesapPlani::AdimSonucu HesapPlani::KodAdimi(const QString& hesapKod, Adim adim)
{
    QString kod = hesapKod;
    const bool sayfa = adim == Adim::SayfaAsagi || adim == Adim::SayfaYukari;
    if ((sayfa && kod == u" ") || (adim == Adim::BTAsagi && kod.isEmpty()))
        kod = QStringLiteral("0");
    const bool artir = adim == Adim::SayfaAsagi || adim == Adim::BTYukari;
    if (artir ? kod.isEmpty() : Val(kod) < 1)
        return {kod, false};
    return {QString::number(kodSayisi(kod) + (artir ? 1 : -1)), true};
}

void HesapPlani::Yaz(Yazici& p, const Izgara& izgara, int yon, double punto)
{
    p.Orientation = yon;
    p.FontSize = punto;
    Sayfa kagit;
    kagit.yon = yon == 2 ? QPageLayout::Landscape : QPageLayout::Portrait;
    const double sayfaSonu = kagit.KagitBoyu().height() - 2 * KenarTwip;

    p.Print();
    for (int r = 1; r < izgara.Rows(); ++r) {
        if (p.CurrentY + p.TextHeight() > sayfaSonu)
            p.NewPage();
        p.Print({Tab(2), izgara.TextMatrix(r, 0).left(19), Tab(23), izgara.TextMatrix(r, 1)});
    }
    p.EndDoc();
}
