// Loading a code list of 20,000 and 200,000 codes into a new data folder:
// reading, the plan, the record of the reference plan and the reference
// plan. Usage: kod_plani_bench [counts...]

#include "kod_plani_yukle.h"
#include "veri.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QList<int> sayilar;
    for (int i = 1; i < argc; ++i)
        sayilar << QString::fromLocal8Bit(argv[i]).toInt();
    if (sayilar.isEmpty())
        sayilar = {20000, 200000};
    for (int sayi : sayilar) {
        QTemporaryDir tmp;
        const QString yol = tmp.filePath(QStringLiteral("kodlar.tsv"));
        {
            QFile f(yol);
            f.open(QIODevice::WriteOnly);
            for (int i = 0; i < sayi; ++i)
                f.write(QStringLiteral("150 %1 %2 %3\tÖlçüm Malzemesi %4\n")
                            .arg(i / 10000 % 100, 2, 10, QLatin1Char('0'))
                            .arg(i / 100 % 100, 2, 10, QLatin1Char('0'))
                            .arg(i % 100, 2, 10, QLatin1Char('0'))
                            .arg(i)
                            .toUtf8());
        }
        Veri veri(tmp.filePath(QStringLiteral("veri")));
        QElapsedTimer t;
        t.start();
        const KodPlaniSonucu sonuc = KodPlaniYukle(veri, yol);
        const double ilk = t.elapsed() / 1000.0;
        t.restart();
        const KodPlaniSonucu yine = KodPlaniYukle(veri, yol);
        std::printf("%d kod: ilk yükleme %.2f s (%d yeni), aynı dosya yeniden %.2f s (%d aynı)\n", sayi, ilk,
                    sonuc.eklenen, t.elapsed() / 1000.0, yine.ayni);
    }
    return 0;
}
