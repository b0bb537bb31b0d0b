#include "unite_tanim.h"

#include "bicim.h"
#include "grid_yazdir.h"
#include "izgara.h"
#include "kayit.h"
#include "tek_deger.h"
#include "veritabani.h"
#include "yazici.h"

namespace {

// An empty box gives a null text, which would be stored as NULL.
QVariant metinDegeri(const QString& metin)
{
    return metin.isNull() ? QStringLiteral("") : metin;
}

QSqlQuery satirOku(Veritabani& vt, const QString& kod)
{
    return vt.Sorgu(QStringLiteral("Select UniteKod, UniteAd from Unite_K where UniteKod = ? "), {metinDegeri(kod)});
}

}

const QStringList& UniteTanim::Basliklar()
{
    static const QStringList basliklar{QStringLiteral("Ünite Kod"), QStringLiteral("Ünite Adı")};
    return basliklar;
}

const QList<int>& UniteTanim::Genislikler()
{
    static const QList<int> genislikler{1000, 3790};
    return genislikler;
}

QList<QStringList> UniteTanim::Liste(Veritabani& vt, const QString& kodSiniri, const QString& adSiniri,
                                     Sira sira)
{
    QString kosul = QStringLiteral(" where UniteKod <> '' ");
    QVariantList degerler;
    if (!kodSiniri.trimmed().isEmpty()) {
        kosul += QStringLiteral(" and UniteKod >= ? ");
        degerler << kodSiniri;
    }
    if (!adSiniri.trimmed().isEmpty()) {
        kosul += QStringLiteral("and UniteAd >= ? COLLATE TR ");
        degerler << adSiniri;
    }
    const QString siralama = sira == Sira::Kod ? QStringLiteral("UniteKod") : QStringLiteral("UniteAd COLLATE TR");
    return vt.Satirlar(QStringLiteral("Select UniteKod, UniteAd from Unite_K ") + kosul
                               + QStringLiteral(" order by ") + siralama,
                           degerler);
}

QString UniteTanim::Sonk(Veritabani& vt)
{
    return SayiMetni(EnBuyukSayi(vt, QStringLiteral("Unite_K"), QStringLiteral("UniteKod")) + 1);
}

std::optional<UniteSatiri> UniteTanim::Getir(Veritabani& vt, const QString& kod)
{
    QSqlQuery q = satirOku(vt, kod);
    if (!q.next())
        return std::nullopt;
    return UniteSatiri{q.value(0).toString().trimmed(), q.value(1).toString().trimmed()};
}

bool UniteTanim::Var(Veritabani& vt, const QString& kod)
{
    return satirOku(vt, kod).next();
}

void UniteTanim::Kaydet(Veritabani& vt, const QString& kod, const QString& ad)
{
    Islem islem(vt);
    // Only the first row of a code that stands twice is renamed.
    QSqlQuery q = vt.Sorgu(QStringLiteral("Select rowid from Unite_K where UniteKod = ? "), {metinDegeri(kod)});
    if (q.next())
        vt.Calistir(QStringLiteral("update Unite_K set UniteAd = ? where rowid = ?"), {metinDegeri(ad), q.value(0)});
    else
        vt.Calistir(QStringLiteral("insert into Unite_K (UniteKod, UniteAd) values (?, ?)"),
                    {metinDegeri(kod), metinDegeri(ad)});
    islem.Onayla();
}

void UniteTanim::Sil(Veritabani& vt, const QString& kod)
{
    vt.Calistir(QStringLiteral("Delete from Unite_K where UniteKod = ? "), {metinDegeri(kod)});
}

QString UniteTanim::Adim(const QString& kod, bool yukari)
{
    const double deger = Val(kod);
    if (yukari && !kod.isEmpty())
        return SayiMetni(deger + 1);
    if (!yukari && deger >= 1)
        return SayiMetni(deger - 1);
    return kod;
}

void UniteTanim::ListeYazdir(Yazici& p, const QString& kurum, const Izgara& izgara)
{
    GridYazdir(p, kurum + QStringLiteral(" - ") + QStringLiteral("Bilet Listesi       Tarih :"), izgara);
    p.EndDoc();
}

void UniteTanim::UniteListesiYazdir(Veritabani& vt, const QString& kurum, Yazici& p)
{
    QList<QStringList> satirlar{Basliklar()};
    satirlar += Liste(vt, {}, {}, Sira::Kod);
    ListeYazdir(p, kurum, Izgara(satirlar, Genislikler()));
}
