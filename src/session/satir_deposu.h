#pragma once

#include <QList>
#include <QStringList>

#include <memory>
#include <vector>

class QTemporaryFile;

// The rows of a list, in blocks of which only a few stay in memory: a block
// pushed out goes to a temporary file of ours and comes back from it when
// asked for, so a list of a million lines costs what a few thousand do.
// Blocks being filled come in cold, so that reading a long list to its end
// does not push out the rows on the screen.
class SatirDeposu
{
public:
    SatirDeposu(int blokSatiri, int pencere);
    ~SatirDeposu();
    SatirDeposu(const SatirDeposu&) = delete;
    SatirDeposu& operator=(const SatirDeposu&) = delete;

    int Boy() const { return m_boy; }
    // Rows in memory now, at most a window of blocks (more only while the
    // temporary file cannot be written).
    int Bellekte() const;
    void Ekle(const QStringList& satir);
    // For 0 <= satir < Boy().
    QStringList Satir(int satir);
    // Sets a cell, widening its row; the change survives the block's leaving.
    void Yaz(int satir, int sutun, const QString& metin);
    void Temizle();

private:
    struct Blok
    {
        QList<QStringList> satirlar;
        qint64 konum = -1;
        qint64 uzunluk = 0;
        bool bellekte = true;
        bool kirli = true;
    };

    Blok& Getir(int blok);
    void YerAc();
    bool Cikar(int blok);

    int m_blokSatiri;
    int m_pencere;
    int m_boy = 0;
    std::vector<Blok> m_bloklar;
    // Blocks in memory, the least recently used first.
    QList<int> m_sira;
    std::unique_ptr<QTemporaryFile> m_dosya;
    qint64 m_dosyaSonu = 0;
};
