#include "rapor_belgesi.h"

#include "cikti.h"

#include <QFileInfo>

namespace {

// The paper written to a PDF file.
class PdfBelgesi : public RaporBelgesi
{
public:
    PdfBelgesi(const QString& dosya, const RaporKagidi& kagit, double yaziBoy, int yon, int& sayfaNo)
        : m_cikti(dosya), m_kagit(RaporBelgeleri::Kagit(m_cikti, kagit, yaziBoy, yon, sayfaNo))
    {
    }
    void Ekle(const RaporTablosu& tablo) override { m_kagit->Ekle(tablo); }
    void Bitir() override { m_kagit->Bitir(); }

private:
    PdfCikti m_cikti;
    std::unique_ptr<RaporBelgesi> m_kagit;
};

}

std::unique_ptr<RaporBelgesi> RaporBelgeleri::Dosya(const QString& dosya, const RaporKagidi& kagit, double yaziBoy,
                                                    int yon, int& sayfaNo)
{
    const QString uzanti = QFileInfo(dosya).suffix().toLower();
    if (uzanti == u"pdf")
        return std::make_unique<PdfBelgesi>(dosya, kagit, yaziBoy, yon, sayfaNo);
    if (uzanti == u"csv")
        return Csv(dosya);
    if (uzanti == u"xlsx")
        return Xlsx(dosya);
    return nullptr;
}
