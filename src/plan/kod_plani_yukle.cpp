#include "kod_plani_yukle.h"

#include "veri.h"
#include "veritabani.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QTextStream>

namespace {

struct KodSatiri
{
    int satirNo;
    QString kod;
    QString ad;
};

QString satirHatasi(int no, const QString& mesaj)
{
    return QStringLiteral("Satır %1: %2 Hesap planına hiçbir şey yazılmadı.").arg(no).arg(mesaj);
}

// The plan's form: a main code of three digits, then groups of two.
QList<KodSatiri> oku(const QString& dosya)
{
    QFile f(dosya);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        throw VeriHatasi(QStringLiteral("\"%1\" okunamadı: %2").arg(dosya, f.errorString()));
    static const QRegularExpression bicim(QStringLiteral("^[0-9]{3}( [0-9]{2}){0,6}$"));
    QTextStream akis(&f);
    QList<KodSatiri> satirlar;
    QHash<QString, int> gorulen;
    int no = 0;
    while (!akis.atEnd()) {
        const QString satir = akis.readLine();
        ++no;
        if (satir.trimmed().isEmpty())
            continue;
        const qsizetype sekme = satir.indexOf(u'\t');
        if (sekme < 0)
            throw VeriHatasi(satirHatasi(no, QStringLiteral("kod ile adı bir sekme ile ayrılmalı.")));
        const QString kod = satir.left(sekme).trimmed();
        const QString ad = satir.mid(sekme + 1).trimmed();
        if (!bicim.match(kod).hasMatch())
            throw VeriHatasi(satirHatasi(
                no, QStringLiteral("\"%1\" kodu XXX XX XX XX XX XX XX biçiminde değil.").arg(kod)));
        if (ad.isEmpty())
            throw VeriHatasi(satirHatasi(no, QStringLiteral("\"%1\" kodunun adı boş.").arg(kod)));
        if (const auto onceki = gorulen.constFind(kod); onceki != gorulen.constEnd())
            throw VeriHatasi(satirHatasi(
                no, QStringLiteral("\"%1\" kodu %2. satırda da var.").arg(kod).arg(*onceki)));
        gorulen.insert(kod, no);
        satirlar.append({no, kod, ad});
    }
    if (satirlar.isEmpty())
        throw VeriHatasi(QStringLiteral("\"%1\" içinde kod yok.").arg(QFileInfo(dosya).fileName()));
    return satirlar;
}

}

KodPlaniSonucu KodPlaniYukle(Veri& veri, const QString& dosya)
{
    const QList<KodSatiri> satirlar = oku(dosya);
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
