#pragma once
// The printing surface on a QPrinter: a real queue through CUPS, or a PDF file.
#include "output/PrintSurface.h"

#include <QFont>
#include <QPainter>
#include <memory>

class QPrinter;

namespace orvane {

class QtPrintSurface : public PrintSurface {
  public:
    // A printer sends each document as a job of its own. A PDF file holds one file only, so
    // there a document's end only starts a fresh page (numbered from 1 again) and the file is
    // closed by Finish() or the destructor.
    enum class Documents { OneJobEach, OneFile };
    QtPrintSurface(QPrinter& printer, Documents documents);
    ~QtPrintSurface() override;

    double Width() const override;
    double Height() const override;
    long Page() const override { return page_; }
    double CurrentX() const override { return x_; }
    double CurrentY() const override { return y_; }
    void SetCurrentX(double x) override { x_ = x; }
    void SetCurrentY(double y) override { y_ = y; }
    void SetFontName(const std::string& name) override;
    void SetFontBold(bool on) override { font_.setBold(on); }
    void SetFontItalic(bool on) override { font_.setItalic(on); }
    void SetFontUnderline(bool on) override { font_.setUnderline(on); }
    void SetDrawStyle(int style) override { drawStyle_ = style; }
    void SetDrawWidth(int width) override { drawWidth_ = width; }
    void Print(const std::string& text) override;
    void Line(double x1, double y1, double x2, double y2) override;
    void NewPage() override;
    void EndDoc() override;
    void SetOrientation(PageOrientation orientation) override;
    // Ends the last document: the job is sent or the file written. False when that failed.
    bool Finish();

  private:
    QPainter& Painter();
    double ToDevice(double twips) const;
    double ToTwips(double pixels) const;

    QPrinter& printer_;
    Documents documents_;
    QPainter painter_;
    QFont font_;
    long page_ = 1;
    double x_ = 0, y_ = 0;
    int drawStyle_ = 0, drawWidth_ = 1;
    bool pageEnded_ = false; // OneFile: the next output starts a new page
    bool failed_ = false;
};

} // namespace orvane
