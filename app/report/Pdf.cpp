#include "app/report/Pdf.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDateTime>
#include <QPageSize>
#include <QPdfWriter>

#include "app/report/Painter.h"

namespace brivane::app::report {
namespace {

constexpr int kResolution = 1200;

/// What a reader and an archive find about the document. Qt tells the title of itself, and not the language.
QByteArray Metadata(const QString& title, const QString& creator, const QString& adviser) {
  const QString now = QDateTime::currentDateTime().toTimeSpec(Qt::OffsetFromUTC).toString(Qt::ISODate);
  return QStringLiteral(
             "<?xpacket begin=\"\uFEFF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
             "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
             "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
             "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\""
             " xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\">\n"
             "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">%1</rdf:li>"
             "<rdf:li xml:lang=\"nl-NL\">%1</rdf:li></rdf:Alt></dc:title>\n"
             "<dc:creator><rdf:Seq><rdf:li>%2</rdf:li></rdf:Seq></dc:creator>\n"
             "<dc:language><rdf:Bag><rdf:li>nl-NL</rdf:li></rdf:Bag></dc:language>\n"
             "<xmp:CreatorTool>%3</xmp:CreatorTool>\n"
             "<xmp:CreateDate>%4</xmp:CreateDate>\n"
             "</rdf:Description>\n</rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"w\"?>")
      .arg(title.toHtmlEscaped(), adviser.toHtmlEscaped(), creator.toHtmlEscaped(), now)
      .toUtf8();
}

}  // namespace

QByteArray PdfOf(const Report& report) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  const QString client = QString::fromStdString(report.client);
  const QString title =
      QString::fromStdString(report.title) + (client.isEmpty() ? QString() : QStringLiteral(" - ") + client);
  const QString creator = QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion();
  writer.setTitle(title);
  writer.setCreator(creator);
  writer.setDocumentXmpMetadata(Metadata(title, creator, QString::fromStdString(report.adviser)));
  writer.setResolution(kResolution);
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setPageMargins({});
  const std::vector<Page> pages = Paginate(report, PrintedRuler(), SheetOf(writer));
  // A buffer takes all that is written.
  if (!PaintPages(pages, writer)) return {};
  return bytes;
}

}  // namespace brivane::app::report
