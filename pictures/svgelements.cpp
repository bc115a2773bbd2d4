#include "pictures/svgelements.h"

#include <algorithm>

void SvgElements::open(const QString &name, const QStringList &used, qint64 bytes)
{
    const int index = m_nodes.size();
    Node node;
    node.used = used;
    node.weight = {1, bytes, 1};
    m_nodes.append(node);
    if (!m_open.isEmpty())
        m_nodes[m_open.last()].children.append(index);
    if (!name.isEmpty())
        m_named.insert(name, index);
    m_open.append(index);
}

void SvgElements::addBytes(qint64 bytes)
{
    if (!m_open.isEmpty())
        m_nodes[m_open.last()].weight.bytes += bytes;
}

bool SvgElements::isWithin(const Weight &limits)
{
    m_limits = limits;
    return m_nodes.isEmpty() || weigh(0, 1);
}

QVector<int> SvgElements::partsOf(const Node &node) const
{
    QVector<int> parts = node.children;
    for (const QString &name : node.used)
        parts += m_named.values(name).toVector();
    return parts;
}

bool SvgElements::weigh(int index, int level)
{
    const State state = m_nodes.at(index).state;
    if (state == State::Weighed)
        return true;
    if (state == State::Open || level > m_limits.depth)
        return false;
    m_nodes[index].state = State::Open;
    const QVector<int> parts = partsOf(m_nodes.at(index));
    const bool isWhole =
        std::all_of(parts.begin(), parts.end(), [&](int part) { return add(index, part, level); });
    m_nodes[index].state = State::Weighed;
    return isWhole && isLight(m_nodes.at(index).weight);
}

bool SvgElements::add(int index, int part, int level)
{
    if (!weigh(part, level + 1))
        return false;
    const Weight added = m_nodes.at(part).weight;
    Weight &sum = m_nodes[index].weight;
    sum.elements += added.elements;
    sum.bytes += added.bytes;
    sum.depth = qMax(sum.depth, 1 + added.depth);
    return isLight(sum);
}

bool SvgElements::isLight(const Weight &weight) const
{
    return weight.elements <= m_limits.elements && weight.bytes <= m_limits.bytes &&
           weight.depth <= m_limits.depth;
}
