#pragma once

#include <QLoggingCategory>
#include <QStringList>

namespace schedules::testing {

/// Collects the trace lines of a category, the component's unless another is named, for as long as it lives.
class TraceLog
{
public:
    explicit TraceLog(const char* category = "schedules.trace")
    {
        s_lines = &lines;
        s_category = category;
        QLoggingCategory::setFilterRules(QLatin1String(category) + QStringLiteral(".debug=true"));
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
        if (context.category == QLatin1String(s_category))
            s_lines->append(message);
    }

    static inline QStringList* s_lines = nullptr;
    static inline const char* s_category = nullptr;
    QtMessageHandler m_previous = nullptr;
};

} // namespace schedules::testing
