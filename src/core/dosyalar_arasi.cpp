#include "dosyalar_arasi.h"

#include "veri.h"
#include "veritabani.h"

#include <QDataStream>
#include <QIODevice>
#include <QSqlQuery>

namespace {

QByteArray yaz(const QList<DosyalarArasi::Komut>& komutlar)
{
    QByteArray veri;
    QDataStream akis(&veri, QIODevice::WriteOnly);
    akis << qint32(komutlar.size());
    for (const auto& k : komutlar)
        akis << qint32(k.dosya) << k.sql << k.degerler;
    return veri;
}

QList<DosyalarArasi::Komut> oku(const QByteArray& veri)
{
    QDataStream akis(veri);
    qint32 sayi = 0;
    akis >> sayi;
    QList<DosyalarArasi::Komut> komutlar;
    for (qint32 i = 0; i < sayi && akis.status() == QDataStream::Ok; ++i) {
        qint32 dosya = 0;
        DosyalarArasi::Komut k;
        akis >> dosya >> k.sql >> k.degerler;
        k.dosya = Dosya(dosya);
        komutlar << k;
    }
    if (akis.status() != QDataStream::Ok)
        throw VeriHatasi(QStringLiteral("GENEL.MDB içindeki yarım kalan işlem kaydı okunamadı."));
    return komutlar;
}


// Runs the statements of the record, each file's in one transaction, and
// removes the record.
void uygula(Veri& veri, qint64 no)
{
    QList<DosyalarArasi::Komut> komutlar;
    {
        QSqlQuery q = veri.Genel().Sorgu(QStringLiteral("select Komutlar from BEKLEYEN where No = ?"), {no});
        if (!q.next())
            return;
        komutlar = oku(q.value(0).toByteArray());
    }
    for (Dosya d : VeriDosyalari) {
        bool var = false;
        for (const DosyalarArasi::Komut& k : komutlar)
            var = var || k.dosya == d;
        if (!var)
            continue;
        Veritabani& vt = veri.Baglanti(d);
        Islem islem(vt);
        for (const DosyalarArasi::Komut& k : komutlar)
            if (k.dosya == d)
                vt.Hazir(k.sql).Calistir(k.degerler);
        islem.Onayla();
    }
    DosyalarArasi::Sil(veri.Genel(), no);
}

}

qint64 DosyalarArasi::Kaydet(Veritabani& genel, const QString& aciklama, const QList<Komut>& komutlar)
{
    Islem islem(genel);
    genel.Calistir(QStringLiteral("insert into BEKLEYEN (Aciklama, Komutlar) values (?, ?)"),
                   {aciklama, yaz(komutlar)});
    const qint64 no = genel.Satirlar(QStringLiteral("select last_insert_rowid()")).value(0).value(0).toLongLong();
    islem.Onayla();
    return no;
}

void DosyalarArasi::Sil(Veritabani& genel, qint64 no)
{
    genel.Calistir(QStringLiteral("delete from BEKLEYEN where No = ?"), {no});
}

void DosyalarArasi::Yaz(Veri& veri, qint64 no, const std::function<void()>& yaz)
{
    try {
        yaz();
    } catch (...) {
        try {
            uygula(veri, no);
        } catch (const VeriHatasi&) {
            // The record stays; the next opening runs it.
        }
        throw;
    }
}

QStringList DosyalarArasi::Tamamla(Veri& veri)
{
    QStringList sonuc;
    for (const QStringList& kayit :
         veri.Genel().Satirlar(QStringLiteral("select No, Aciklama from BEKLEYEN order by No"))) {
        uygula(veri, kayit.at(0).toLongLong());
        sonuc << QStringLiteral("Yarım kalan işlem geri alındı: %1").arg(kayit.at(1));
    }
    return sonuc;
}
