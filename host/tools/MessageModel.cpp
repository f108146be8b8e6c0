#include "host/tools/MessageModel.h"

#include <algorithm>

namespace schedules::host {

namespace {

constexpr int kLongestLine = 200;
constexpr int kLongestTip = 2000;

/// Some of them hold whole schedules.
constexpr qsizetype kMostKept = 1000;

QString ParametersText(const Crossing& crossing)
{
    if (!crossing.message)
        return crossing.envelope.body.toString();
    QStringList parts;
    for (const Parameter& parameter : crossing.message->parameters.Items())
        parts.append(QStringLiteral("%1 = \"%2\"").arg(parameter.name, parameter.value.toString()));
    return parts.join(QStringLiteral("; "));
}

QString KindText(MessageKind kind)
{
    return kind == MessageKind::Request ? MessageModel::tr("Request") : MessageModel::tr("Event");
}

QString FieldText(const Crossing& crossing, int field)
{
    switch (field) {
    case MessageModel::Time:
        return crossing.time.toString(QStringLiteral("HH:mm:ss.zzz"));
    case MessageModel::Route:
        return QStringLiteral("%1 → %2").arg(crossing.envelope.sender, crossing.envelope.recipient);
    case MessageModel::Kind:
        return KindText(crossing.envelope.kind);
    case MessageModel::Name:
        return crossing.message ? crossing.message->name : MessageModel::tr("(not a message)");
    case MessageModel::Parameters:
        return ParametersText(crossing);
    default:
        return crossing.failure.isEmpty() ? crossing.reply : MessageModel::tr("failed: %1").arg(crossing.failure);
    }
}

QString OnOneLine(const QString& text)
{
    const QString line = text.left(kLongestLine * 2).simplified();
    return line.size() > kLongestLine ? line.left(kLongestLine) + QChar(0x2026) : line;
}

} // namespace

void MessageModel::Append(const Crossing& crossing)
{
    const auto later = std::ranges::upper_bound(m_crossings, crossing.time, {}, &Crossing::time);
    const int row = static_cast<int>(later - m_crossings.begin());
    beginInsertRows({}, row, row);
    m_crossings.insert(row, crossing);
    endInsertRows();
    if (m_crossings.size() > kMostKept)
        ForgetOldest();
}

void MessageModel::ForgetOldest()
{
    beginRemoveRows({}, 0, 0);
    m_crossings.removeFirst();
    endRemoveRows();
}

int MessageModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_crossings.size());
}

int MessageModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kFieldCount;
}

QVariant MessageModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const QString text = FieldText(m_crossings[index.row()], index.column());
    if (role == Qt::DisplayRole)
        return OnOneLine(text);
    // A tip is taken for markup where it looks like some.
    return text.size() > kLongestLine ? Qt::convertFromPlainText(text.left(kLongestTip), Qt::WhiteSpaceNormal)
                                      : QVariant();
}

QVariant MessageModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= kFieldCount)
        return {};
    const QStringList titles{tr("Time"), tr("From and to"), tr("Kind"), tr("Message"), tr("Parameters"), tr("Reply")};
    return titles[section];
}

} // namespace schedules::host
