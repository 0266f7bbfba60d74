#pragma once

#include <QList>

/**
 * A map that keeps its keys in the order in which they were first inserted.
 *
 * Keys are equal when their operator== says so. Inserting and looking up compare one key after the
 * other from the front, so whoever has many makes the lists first. Thread-safe as every value: see
 * docs/architecture.md.
 */
template <typename Key, typename Value>
class CHashMap
{
public:
    CHashMap() = default;
    /** Takes @p keys, no two of which are equal, and as many @p values, in the same order. */
    CHashMap(const QList<Key> &keys, const QList<Value> &values)
        : m_keys(keys), m_values(values) { }
    CHashMap(const CHashMap &other) = default;
    virtual ~CHashMap() = default;

    CHashMap &operator=(const CHashMap &other) = default;

    /** Replaces the value of @p key, which keeps its place, or appends both. */
    void insert(const Key &key, const Value &value)
    {
        const int index = m_keys.indexOf(key);
        if (index >= 0) {
            m_values[index] = value;
            return;
        }
        m_keys.append(key);
        m_values.append(value);
    }

    /** The value of @p key; a default-constructed one if the key is missing. */
    Value value(const Key &key) const { return m_values.value(m_keys.indexOf(key)); }

    /** In the order in which they were first inserted. */
    QList<Key> keys() const { return m_keys; }
    /** The values of the keys(), in the same order. */
    QList<Value> values() const { return m_values; }

    bool isEmpty() const { return m_keys.isEmpty(); }
    void clear() { *this = CHashMap(); }

private:
    QList<Key> m_keys;
    QList<Value> m_values;
};
