// SPDX-License-Identifier: MIT
#include "dialog/page/pdf_file.h"

#include <QtEndian>

namespace halvern {

namespace {

constexpr int kCatalog = 1;
constexpr int kPageTree = 2;
constexpr qint64 kMostInLine = 9'999'999'999;

QByteArray reference(int object)
{
    return QByteArray::number(object) + " 0 R";
}

QByteArray colorSpace(int components)
{
    return components == 1 ? "/DeviceGray" : components == 4 ? "/DeviceCMYK" : "/DeviceRGB";
}

} // namespace

PdfFile::PdfFile(QIODevice& device) : device_(device)
{
    offsets_.resize(kPageTree + 1, 0);
    write("%PDF-1.5\n%\xE2\xE3\xCF\xD3\n");
}

void PdfFile::write(const QByteArray& bytes)
{
    ok_ = ok_ && device_.write(bytes) == bytes.size();
    written_ += bytes.size();
}

int PdfFile::beginObject()
{
    offsets_.push_back(written_);
    const int object = int(offsets_.size()) - 1;
    write(QByteArray::number(object) + " 0 obj\n");
    return object;
}

void PdfFile::addContent(const QByteArray& content)
{
    write("<< /Length " + QByteArray::number(content.size()) + " >>\nstream\n" + content +
          "\nendstream\nendobj\n");
}

void PdfFile::beginPicture(const PdfImage& image)
{
    picture_ = beginObject();
    // How long the data are is known behind them, and stands in the next object.
    write("<< /Type /XObject /Subtype /Image /Width " + QByteArray::number(image.size.width()) + " /Height " +
          QByteArray::number(image.size.height()) + " /BitsPerComponent 8 /ColorSpace " +
          colorSpace(image.components) + " /Interpolate true /Filter /" + image.filter + " /Length " +
          reference(picture_ + 1) + " >>\nstream\n");
    pictureStart_ = written_;
}

bool PdfFile::addToPicture(const char* bytes, qsizetype count)
{
    write(QByteArray::fromRawData(bytes, count));
    return ok_;
}

int PdfFile::endPicture()
{
    const qint64 length = written_ - pictureStart_;
    write("\nendstream\nendobj\n");
    beginObject();
    write(QByteArray::number(length) + "\nendobj\n");
    return picture_;
}

void PdfFile::addPage(const QSizeF& paper, const PdfContent& content, const std::vector<int>& pictures)
{
    const int object = beginObject();
    addContent(content.bytes());
    QByteArray names;
    for (size_t i = 0; i < pictures.size(); ++i)
        names += "/I" + QByteArray::number(qint64(i)) + ' ' + reference(pictures[i]) + ' ';
    pages_.push_back(beginObject());
    write("<< /Type /Page /Parent " + reference(kPageTree) + " /MediaBox [0 0 " + pdfNumber(paper.width()) +
          ' ' + pdfNumber(paper.height()) + "] /Resources << /XObject << " + names + ">> >> /Contents " +
          reference(object) + " >>\nendobj\n");
}

void PdfFile::sayStillHere()
{
    write("%\n");
}

bool PdfFile::finish()
{
    offsets_[kPageTree] = written_;
    QByteArray kids;
    for (const int page : pages_)
        kids += reference(page) + ' ';
    write(QByteArray::number(kPageTree) + " 0 obj\n<< /Type /Pages /Count " +
          QByteArray::number(qint64(pages_.size())) + " /Kids [ " + kids + "] >>\nendobj\n");
    offsets_[kCatalog] = written_;
    write(QByteArray::number(kCatalog) + " 0 obj\n<< /Type /Catalog /Pages " + reference(kPageTree) +
          " /ViewerPreferences << /PrintScaling /None >> >>\nendobj\n");
    const qint64 table = written_;
    // Every reader knows the table of lines, which has ten digits for a place.
    if (table > kMostInLine)
        writeTableStream();
    else
        writeTable();
    write("startxref\n" + QByteArray::number(table) + "\n%%EOF\n");
    return ok_;
}

void PdfFile::writeTable()
{
    const QByteArray count = QByteArray::number(qint64(offsets_.size()));
    write("xref\n0 " + count + "\n0000000000 65535 f \n");
    for (size_t i = 1; i < offsets_.size(); ++i)
        write(QByteArray::number(offsets_[i]).rightJustified(10, '0') + " 00000 n \n");
    write("trailer\n<< /Size " + count + " /Root " + reference(kCatalog) + " >>\n");
}

// An object that has the table in binary, and is in it.
void PdfFile::writeTableStream()
{
    const qint64 own = written_;
    offsets_.push_back(own);
    QByteArray entries(1 + qsizetype(sizeof own), '\0'); // the first one is free
    for (size_t i = 1; i < offsets_.size(); ++i) {
        char place[sizeof own];
        qToBigEndian(offsets_[i], place);
        entries.append('\1').append(place, sizeof place);
    }
    const qint64 count = qint64(offsets_.size());
    write(QByteArray::number(count - 1) + " 0 obj\n<< /Type /XRef /W [1 8 0] /Size " +
          QByteArray::number(count) + " /Root " + reference(kCatalog) + " /Length " +
          QByteArray::number(entries.size()) + " >>\nstream\n" + entries + "\nendstream\nendobj\n");
}

} // namespace halvern
