#pragma once

#include <QHash>
#include <QList>

/**
 * A map that keeps its keys in the order in which they were first inserted.
 *
 * Keys are equal when their operator== says so; they need a qHash(). Inserting and looking up take
 * the same time however many keys there are. Thread-safe as every value: see docs/architecture.md.
 */
template <typename Key, typename Value>
class CHashMap
{
public:
    CHashMap() = default;
    CHashMap(const CHashMap &other) = default;
    virtual ~CHashMap() = default;

    CHashMap &operator=(const CHashMap &other) = default;

    /** Replaces the value of @p key, which keeps its place, or appends both. */
    void insert(const Key &key, const Value &value)
    {
        const auto known = m_indices.constFind(key);
        if (known != m_indices.constEnd()) {
            m_values[known.value()] = value;
            return;
        }
        m_indices.insert(key, m_keys.size());
        m_keys.append(key);
        m_values.append(value);
    }

    /** The value of @p key; a default-constructed one if the key is missing. */
    Value value(const Key &key) const { return m_values.value(m_indices.value(key, -1)); }

    /** In the order in which they were first inserted. */
    QList<Key> keys() const { return m_keys; }
    /** The values of the keys(), in the same order. */
    QList<Value> values() const { return m_values; }

    bool isEmpty() const { return m_keys.isEmpty(); }
    void clear() { *this = CHashMap(); }

private:
    QList<Key> m_keys;
    QList<Value> m_values;
    /** Where each key stands in the lists. */
    QHash<Key, int> m_indices;
};
