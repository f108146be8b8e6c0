#pragma once

#include <QLoggingCategory>
#include <QStringList>

namespace schedules::testing {

/// Collects the component's trace lines for as long as it lives.
class TraceLog
{
public:
    TraceLog()
    {
        s_lines = &lines;
        QLoggingCategory::setFilterRules(QStringLiteral("schedules.trace.debug=true"));
        m_previous = qInstallMessageHandler(Collect);
    }

    ~TraceLog()
    {
        qInstallMessageHandler(m_previous);
        QLoggingCategory::setFilterRules(QString());
        s_lines = nullptr;
    }

    Q_DISABLE_COPY_MOVE(TraceLog)

    QStringList lines;

private:
    static void Collect(QtMsgType, const QMessageLogContext& context, const QString& message)
    {
        if (context.category == QLatin1String("schedules.trace"))
            s_lines->append(message);
    }

    static inline QStringList* s_lines = nullptr;
    QtMessageHandler m_previous = nullptr;
};

} // namespace schedules::testing
