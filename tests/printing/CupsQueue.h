#pragma once
// A private CUPS scheduler with one cups-pdf queue, all in a temporary folder: its own
// configuration, a Unix socket for clients (CUPS_SERVER) and an output folder for the PDFs.
// cups-pdf reads its settings only from /etc/cups/cups-pdf-NAME.conf, so that one file is
// written there for the queue's life and removed with it.
#include "support/TempDir.h"

#include <QProcess>
#include <string>

namespace orvane::test {

class CupsQueue {
  public:
    CupsQueue();
    ~CupsQueue();
    // Empty when the queue is up; otherwise why it cannot run here.
    const std::string& Unavailable() const { return unavailable_; }
    const std::string& Name() const { return name_; }
    std::string OutputFolder() const { return dir_.Path() + "out/"; }
    std::string Socket() const { return dir_.Path() + "cups.sock"; }

  private:
    bool Start();
    bool Admin(const QStringList& arguments);

    TempDir dir_;
    std::string name_;
    std::string pdfConf_;
    QProcess cupsd_;
    std::string unavailable_;
};

} // namespace orvane::test
