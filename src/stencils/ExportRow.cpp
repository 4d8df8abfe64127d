#include "stencils/ExportRow.h"

QByteArray ExportRow(const StencilRecord &record, const QByteArray &separator) {
  QByteArray row(record.Header.bytes, sizeof record.Header);
  row += separator;
  for (const QByteArrayView column :
       {record.HtmlSource.TrimmedBytes(), record.TextCaption.TrimmedBytes(),
        record.Description.TrimmedBytes()}) {
    row.append(column.data(), column.size());
    row += separator;
  }
  return row + "\r\n\r\n";
}
