// The whole year-end set of the working year over a million voucher lines:
// each step (its table computed, written as PDF and into the workbook) and
// the whole, with the pages and bytes written. Usage: yil_sonu_bench
// [folder]; a folder that already holds the sample is reused, the set goes
// to a temporary folder.

#include "olcum.h"
#include "ornek_veri.h"
#include "saat.h"
#include "veri.h"
#include "yil_sonu.h"

#include <QGuiApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <memory>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    QTemporaryDir gecici, cikti;
    const QString klasor = argc > 1 ? QString::fromLocal8Bit(argv[1]) : gecici.path();
    const bool bos = !QFileInfo::exists(QDir(klasor).filePath(QStringLiteral("AYNIYAT.MDB")));
    Veri veri(klasor);
    if (bos)
        OrnekVeriYaz(veri, 1000000);

    Olcum hepsi;
    const QString yil = QString::number(Saat::Bugun().year());
    std::unique_ptr<Olcum> adim = std::make_unique<Olcum>();
    QString adimAdi = QStringLiteral("checks");
    const QList<YilSonuDenetimi::Bulgu> bulgular = YilSonuDenetimi::Denetle(veri.Ayniyat(), veri.Genel(), yil);
    int sonAdim = 0;
    const auto bitir = [&] {
        if (adim)
            adim->Yaz(adimAdi.toUtf8().constData(), {});
    };
    const YilSonu::Sonuc sonuc = YilSonu::Yaz(veri, yil, cikti.path(), bulgular, [&](const QString& ad, int no, int) {
        if (no != sonAdim) {
            bitir();
            adim = std::make_unique<Olcum>();
            adimAdi = ad;
            sonAdim = no;
        }
        return true;
    });
    bitir();
    qint64 bayt = 0;
    for (const QString& dosya : sonuc.dosyalar)
        bayt += QFileInfo(dosya).size();
    hepsi.Yaz("whole set", QStringLiteral("%1 files, %2 MB, %3 findings, %4 differences")
                               .arg(sonuc.dosyalar.size())
                               .arg(bayt / 1000000)
                               .arg(sonuc.bulgular)
                               .arg(sonuc.farklar));
    return 0;
}
