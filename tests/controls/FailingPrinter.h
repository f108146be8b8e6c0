#pragma once

#include <QPaintEngine>
#include <QPrintEngine>
#include <QPrinter>

namespace schedules::testing {

/// The works of a printer that runs out of paper after a page, and writes down what it is told to do.
class FailingPrintEngine : public QPaintEngine, public QPrintEngine
{
public:
    FailingPrintEngine() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice*) override { return Note("begin"); }
    bool end() override { return Note("end"); }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawTextItem(const QPointF&, const QTextItem&) override {}
    Type type() const override { return User; }

    void setProperty(PrintEnginePropertyKey, const QVariant&) override {}
    QVariant property(PrintEnginePropertyKey) const override { return {}; }
    bool newPage() override { return !Note("page"); }
    bool abort() override { return Note("abort"); }
    int metric(QPaintDevice::PaintDeviceMetric) const override { return 300; }
    QPrinter::PrinterState printerState() const override { return isActive() ? QPrinter::Active : QPrinter::Idle; }

    std::string told;

private:
    bool Note(const char* what)
    {
        told += std::string(told.empty() ? "" : ", ") + what;
        return true;
    }
};

class FailingPrinter : public QPrinter
{
public:
    FailingPrinter() { setEngines(&m_engine, &m_engine); }
    bool setPageLayout(const QPageLayout&) override { return true; }

    const std::string& Told() const { return m_engine.told; }

private:
    FailingPrintEngine m_engine;
};

} // namespace schedules::testing
