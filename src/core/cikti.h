#pragma once

#include "hata.h"
#include "sayfa.h"

#include <QString>

#include <memory>

class QPagedPaintDevice;
class QPainter;

// A document that cannot reach its output. The message is the one the user
// sees, with the critical icon.
class YaziciHatasi : public Hata
{
public:
    YaziciHatasi() : Hata(QStringLiteral("Belge yazdırılamıyor..")) {}
    explicit YaziciHatasi(const QString& mesaj) : Hata(mesaj) {}
};

// Where a finished document goes when Yazici::EndDoc hands it over.
class Cikti
{
public:
    virtual ~Cikti() = default;
    // Asked before a document's first page: printing to a missing printer
    // fails at once, as it always did.
    virtual bool Hazir() const { return true; }
    // Throws YaziciHatasi when the document cannot be written.
    virtual void Yaz(const Belge& belge) = 0;
};

// Keeps the documents, for screens that show a form before printing it.
class BellekCikti : public Cikti
{
public:
    void Yaz(const Belge& belge) override;
    QList<Belge> belgeler;
};

// Writes the document as a PDF file. The file takes the place of an old one
// only whole: a write that fails leaves the old file, or none, and throws.
class PdfCikti : public Cikti
{
public:
    explicit PdfCikti(const QString& dosya);
    void Yaz(const Belge& belge) override;

private:
    QString m_dosya;
};

// A PDF file that grows a document at a time: every document handed over
// adds its pages, so a long report never holds all its pages at once.
// Kapat puts the file in the target's place only whole; dropped before,
// it leaves the old file, or none.
class PdfAkisi : public Cikti
{
public:
    explicit PdfAkisi(const QString& dosya);
    ~PdfAkisi() override;
    void Yaz(const Belge& belge) override;
    // Throws YaziciHatasi when the file cannot be finished.
    void Kapat();

private:
    struct Ic;
    std::unique_ptr<Ic> m_ic;
    QString m_dosya;
};

// Whether the file holds a whole PDF: its header first and its end mark
// last, which a writer cut short never reaches.
bool PdfTamam(const QString& dosya);

// Draws pages on A4, each in its own orientation, one document after the
// other on one device.
class SayfaCizici
{
public:
    explicit SayfaCizici(QPagedPaintDevice& cihaz);
    ~SayfaCizici();
    // False when the device cannot be opened or cannot start a page.
    bool Ciz(const Belge& belge);
    bool Bitir();

private:
    QPagedPaintDevice& m_cihaz;
    std::unique_ptr<QPainter> m_ressam;
};

// The pages of one document. False when the device cannot be opened or
// cannot start a page.
bool BelgeCiz(QPagedPaintDevice& cihaz, const Belge& belge);
