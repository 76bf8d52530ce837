#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <utility>

namespace tarn {

/// The order in which a StackOrQueue gives out what was pushed.
enum StackOrQueueEnum : int
{
    StackOrder = 0,
    QueueOrder = 1
};

/// Decides at which end of the deque a new element stands.
template <class T>
class PushFunc
{
public:
    virtual ~PushFunc() = default;
    /// Puts an element where it belongs.
    virtual void push(std::deque<T>& elements, T element) const = 0;
};

/// Last in, first out.
template <class T>
class StackPush : public PushFunc<T>
{
public:
    void push(std::deque<T>& elements, T element) const override
    {
        elements.push_front(std::move(element));
    }
};

/// First in, first out.
template <class T>
class QueuePush : public PushFunc<T>
{
public:
    void push(std::deque<T>& elements, T element) const override
    {
        elements.push_back(std::move(element));
    }
};

/// Elements that come out in the order pushed or in the reverse of it, as chosen at construction.
template <class T>
class StackOrQueue
{
public:
    explicit StackOrQueue(StackOrQueueEnum order) : m_pushFunc(pushFuncFor(order)) {}

    /// Adds an element, to come out last or next.
    void push(T element) { m_pushFunc->push(m_elements, std::move(element)); }
    /// Takes the next element out; there must be one.
    T pop()
    {
        T element = std::move(m_elements.front());
        m_elements.pop_front();
        return element;
    }
    /// What comes out so many turns after the next; there must be one.
    T const& ahead(std::size_t turns) const { return m_elements[turns]; }
    bool empty() const { return m_elements.empty(); }
    std::size_t size() const { return m_elements.size(); }

private:
    static std::unique_ptr<PushFunc<T>> pushFuncFor(StackOrQueueEnum order)
    {
        if (order == StackOrder)
            return std::make_unique<StackPush<T>>();
        return std::make_unique<QueuePush<T>>();
    }

    std::unique_ptr<PushFunc<T>> m_pushFunc;
    std::deque<T> m_elements;
};

}  // namespace tarn
