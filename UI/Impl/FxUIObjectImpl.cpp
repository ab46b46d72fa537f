#include "UI/Impl/FxUIObjectImpl.h"

#include <utility>

CFxUIObjectImpl::CFxUIObjectImpl(CFxUIObject *object)
    : owner(object)
{
}

CFxUIObjectImpl::~CFxUIObjectImpl()
{
    CutFrontend();
}

void CFxUIObjectImpl::EndWithThis(const std::function<void()> &task)
{
    m_tasks.append(task);
}

void CFxUIObjectImpl::CutFrontend()
{
    const QList<std::function<void()>> tasks = std::exchange(m_tasks, {});
    for (const std::function<void()> &task : tasks)
        task();
}
