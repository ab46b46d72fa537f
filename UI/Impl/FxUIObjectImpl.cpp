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

void CFxUIObjectImpl::EndWithThis(std::function<void()> task)
{
    m_tasks.push_back(std::move(task));
}

void CFxUIObjectImpl::CutFrontend()
{
    const std::vector<std::function<void()>> tasks = std::exchange(m_tasks, {});
    for (const std::function<void()> &task : tasks)
        task();
}
