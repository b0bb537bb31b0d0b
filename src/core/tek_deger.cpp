#include "tek_deger.h"

#include "val_oku.h"

namespace {

QVariant sonDeger(Veritabani& vt, const QString& sql, const QVariantList& degerler)
{
    QSqlQuery sorgu = vt.Sorgu(sql, degerler);
    QVariant son;
    while (sorgu.next())
        son = sorgu.value(0);
    return son;
}

double sayi(const QVariant& deger)
{
    if (deger.isNull())
        return 0.0;
    if (deger.typeId() == QMetaType::QString) {
        const QString metin = deger.toString();
        return ValOku(metin.utf16(), metin.utf16() + metin.size());
    }
    return deger.toDouble();
}

// The Basic Trim: blanks only.
QString metin(const QVariant& deger)
{
    if (deger.isNull())
        return {};
    QString s = deger.toString();
    qsizetype bas = 0;
    qsizetype son = s.size();
    while (bas < son && s.at(bas) == u' ')
        ++bas;
    while (son > bas && s.at(son - 1) == u' ')
        --son;
    return s.mid(bas, son - bas);
}

}

double ToplamAl(Veritabani& vt, const QString& tablo, const QString& alan, const QString& kosul,
                const QVariantList& degerler)
{
    return sayi(sonDeger(vt, QStringLiteral("select SUM(") + alan + QStringLiteral(") from ") + tablo + kosul,
                         degerler));
}

double EnBuyukSayi(Veritabani& vt, const QString& tablo, const QString& alan, const QString& kosul,
                   const QVariantList& degerler)
{
    return sayi(sonDeger(vt, QStringLiteral("select max(") + alan + QStringLiteral(") from ") + tablo + kosul,
                         degerler));
}

QString EnBuyukMetin(Veritabani& vt, const QString& tablo, const QString& alan, const QString& kosul,
                     const QVariantList& degerler)
{
    return metin(sonDeger(vt, QStringLiteral("Select Max(") + alan + QStringLiteral(") from ") + tablo + kosul,
                          degerler));
}

QString AlanGetir(Veritabani& vt, const QString& tablo, const QString& alan, const QString& kosul,
                  const QVariantList& degerler)
{
    return metin(sonDeger(vt, QStringLiteral("select ") + alan + QStringLiteral(" from ") + tablo + kosul,
                          degerler));
}
