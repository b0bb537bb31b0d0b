#include "satir_deposu.h"

#include <QDataStream>
#include <QTemporaryFile>

#include <algorithm>

SatirDeposu::SatirDeposu(int blokSatiri, int pencere)
    : m_blokSatiri(blokSatiri)
    , m_pencere(std::max(pencere, 1))
{
}

SatirDeposu::~SatirDeposu() = default;

int SatirDeposu::Bellekte() const
{
    int satir = 0;
    for (int blok : m_sira)
        satir += int(m_bloklar[blok].satirlar.size());
    return satir;
}

void SatirDeposu::Ekle(const QStringList& satir)
{
    if (m_boy % m_blokSatiri == 0) {
        YerAc();
        m_bloklar.emplace_back();
        // In cold: the next new block pushes it out before any on screen.
        m_sira.prepend(int(m_bloklar.size() - 1));
    }
    Blok& son = m_bloklar.back();
    if (!son.bellekte)
        Getir(int(m_bloklar.size() - 1));
    son.satirlar.append(satir);
    son.kirli = true;
    ++m_boy;
}

QStringList SatirDeposu::Satir(int satir)
{
    return Getir(satir / m_blokSatiri).satirlar.value(satir % m_blokSatiri);
}

void SatirDeposu::Yaz(int satir, int sutun, const QString& metin)
{
    Blok& blok = Getir(satir / m_blokSatiri);
    QStringList& hucreler = blok.satirlar[satir % m_blokSatiri];
    while (hucreler.size() <= sutun)
        hucreler << QString();
    hucreler[sutun] = metin;
    blok.kirli = true;
}

void SatirDeposu::Temizle()
{
    m_boy = 0;
    m_bloklar.clear();
    m_sira.clear();
    m_dosya.reset();
    m_dosyaSonu = 0;
}

SatirDeposu::Blok& SatirDeposu::Getir(int no)
{
    Blok& blok = m_bloklar[no];
    if (blok.bellekte) {
        // The screen asks the same block cell after cell.
        if (m_sira.constLast() != no) {
            m_sira.removeOne(no);
            m_sira.append(no);
        }
        return blok;
    }
    YerAc();
    m_dosya->seek(blok.konum);
    QDataStream okur(m_dosya->read(blok.uzunluk));
    qint32 satirSayisi = 0;
    okur >> satirSayisi;
    blok.satirlar.reserve(satirSayisi);
    for (qint32 i = 0; i < satirSayisi; ++i) {
        qint32 sutunSayisi = 0;
        okur >> sutunSayisi;
        QStringList satir;
        satir.reserve(sutunSayisi);
        for (qint32 j = 0; j < sutunSayisi; ++j) {
            QByteArray hucre;
            okur >> hucre;
            satir << QString::fromUtf8(hucre);
        }
        blok.satirlar << satir;
    }
    blok.bellekte = true;
    blok.kirli = false;
    m_sira.append(no);
    return blok;
}

// Makes room for one more block.
void SatirDeposu::YerAc()
{
    while (m_sira.size() >= m_pencere && Cikar(m_sira.constFirst()))
        m_sira.removeFirst();
}

// Writes the block out unless the file holds it as it is; a block that
// cannot be written stays in memory rather than be lost.
bool SatirDeposu::Cikar(int no)
{
    Blok& blok = m_bloklar[no];
    if (blok.kirli) {
        QByteArray bayt;
        QDataStream yazar(&bayt, QIODevice::WriteOnly);
        yazar << qint32(blok.satirlar.size());
        for (const QStringList& satir : std::as_const(blok.satirlar)) {
            yazar << qint32(satir.size());
            for (const QString& hucre : satir)
                yazar << hucre.toUtf8();
        }
        if (!m_dosya) {
            m_dosya = std::make_unique<QTemporaryFile>();
            if (!m_dosya->open()) {
                m_dosya.reset();
                return false;
            }
        }
        // A block written anew goes to the end; its old copy is left behind.
        if (!m_dosya->seek(m_dosyaSonu) || m_dosya->write(bayt) != bayt.size() || !m_dosya->flush())
            return false;
        blok.konum = m_dosyaSonu;
        blok.uzunluk = bayt.size();
        m_dosyaSonu += bayt.size();
    }
    blok.satirlar = {};
    blok.bellekte = false;
    blok.kirli = false;
    return true;
}
