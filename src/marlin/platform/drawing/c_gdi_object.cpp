// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_gdi_object.h>
#include <marlin/platform/drawing/detail/drawing_objects.h>
#include <marlin/platform/drawing/gdi_objects.h>

#include <cassert>
#include <utility>

using namespace PLATFORM::detail;

CGdiObject::~CGdiObject() {
    DeleteObject();
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ handle) noexcept {
    CGdiObject* wrapper = Fonts().WrapperOf(handle);
    wrapper = wrapper ? wrapper : Brushes().WrapperOf(handle);
    return wrapper ? wrapper : Bitmaps().WrapperOf(handle);
}

HGDIOBJ CGdiObject::GetSafeHandle() const noexcept {
    return m_hObject;
}

bool CGdiObject::Attach(HGDIOBJ handle) noexcept {
    assert(!m_hObject);
    if (!Fonts().Attach(handle, this) && !Brushes().Attach(handle, this) &&
        !Bitmaps().Attach(handle, this)) {
        return false;
    }
    m_hObject = handle;
    return true;
}

HGDIOBJ CGdiObject::Detach() noexcept {
    Fonts().Detach(m_hObject, this);
    Brushes().Detach(m_hObject, this);
    Bitmaps().Detach(m_hObject, this);
    return std::exchange(m_hObject, nullptr);
}

// Detached first: the table forgets the wrapper before its object goes.
bool CGdiObject::DeleteObject() noexcept {
    return m_hObject && ::DeleteObject(Detach()) != 0;
}

bool CGdiObject::CreateStockObject(int index) noexcept {
    // Not attached: several wrappers may hold a stock object.
    m_hObject = ::GetStockObject(index);
    return m_hObject != nullptr;
}
