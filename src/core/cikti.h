#pragma once

#include "hata.h"
#include "sayfa.h"

#include <QString>

class QPagedPaintDevice;

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

// Whether the file holds a whole PDF: its header first and its end mark
// last, which a writer cut short never reaches.
bool PdfTamam(const QString& dosya);

// Draws the pages on A4, each in its own orientation. False when the device
// cannot be opened or cannot start a page.
bool BelgeCiz(QPagedPaintDevice& cihaz, const Belge& belge);
