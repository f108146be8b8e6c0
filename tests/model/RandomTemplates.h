#pragma once

#include <QString>

#include <random>
#include <set>
#include <vector>

namespace schedules::testing {

/// A template file: what stands in it, and what it must be read as.
struct RandomTemplate
{
    QString xml;
    QString drawn;
};

/// Writes template files at random, with names and values of all kinds that XML can hold, in all ways of writing them.
/// The same seed gives the same files.
class RandomTemplates
{
public:
    explicit RandomTemplates(unsigned seed) : m_random(seed) {}

    RandomTemplate Next();

    /// A text with any characters that XML can hold.
    QString Text();
    int UpTo(int most);

private:
    struct Attribute
    {
        QString name;
        QString value;
    };
    using Attributes = std::vector<Attribute>;

    bool Chance(int percent) { return UpTo(99) < percent; }
    QString Character();
    QString MemberName();
    Attributes NewAttributes(const QString& memberName);
    void AddDeclaration(Attributes& attributes);

    void WriteGroup(RandomTemplate& target, int& count, std::set<QString>& taken);
    void WriteItem(RandomTemplate& target, QString& drawn, int& count, std::set<QString>& taken);
    QString Written(const Attributes& attributes);
    QString WrittenLocation(const QString& location);
    QString Escaped(const QString& text, QChar quote);
    QString Between();

    static QString Drawn(const Attributes& attributes);

    std::mt19937 m_random;
    bool m_hasPrefix = false;
};

} // namespace schedules::testing
