#pragma once

#include <QMultiHash>
#include <QStringList>
#include <QVector>

/// The elements of a drawing as a tree, and what there is to draw when each of them is drawn as often as it
/// is used.
class SvgElements
{
public:
    /// What an element and everything in it comes to.
    struct Weight {
        int elements = 0;
        qint64 bytes = 0;
        int depth = 0; ///< of elements in one another
    };

    /// Adds an element of so many bytes to the one that is open, and opens it. The elements that it names as
    /// used are drawn with it.
    void open(const QString &name, const QStringList &used, qint64 bytes);

    /// Closes the open element.
    void close() { m_open.removeLast(); }

    /// Adds to what the open element takes; nothing without one.
    void addBytes(qint64 bytes);

    /// What is drawn with the element that was opened at this number: its children and what it uses.
    QVector<int> partsOf(int index) const { return partsOf(m_nodes.at(index)); }

    /// The number of the open element; there must be one.
    int current() const { return m_open.last(); }

    int depth() const { return m_open.size(); }
    int count() const { return m_nodes.size(); }

    /// True when the first element is within the limits, as often as anything in it is used. What uses itself
    /// has no limit.
    bool isWithin(const Weight &limits);

    /// Of the first element; nothing before it was found within its limits.
    Weight total() const { return m_nodes.isEmpty() ? Weight() : m_nodes.first().weight; }

private:
    enum class State { New, Open, Weighed };
    struct Node {
        QVector<int> children;
        QStringList used;
        Weight weight;
        State state = State::New;
    };

    QVector<int> partsOf(const Node &node) const;
    bool weigh(int index, int level);
    bool add(int index, int part, int level);
    bool isLight(const Weight &weight) const;

    QVector<Node> m_nodes;
    QVector<int> m_open;
    QMultiHash<QString, int> m_named; // a name may be given twice: then either may be meant
    Weight m_limits;
};
