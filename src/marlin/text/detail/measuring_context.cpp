// SPDX-License-Identifier: MIT
#include <marlin/gdi/gdi_scale_factor.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/text/detail/measuring_context.h>

namespace MARLINSUITE {

void PrepareMeasuringContext(CDC& dc) {
    dc.Attach(::CreateDCA("DISPLAY", nullptr, nullptr, nullptr));
    const double scale = GDIScaleFactor::Get();
    if (scale == 1000.0) {
        dc.SetMapMode(MM_HIMETRIC);
        return;
    }
    dc.SetMapMode(MM_ISOTROPIC);
    dc.SetWindowExt(static_cast<int>(scale * dc.GetDeviceCaps(HORZSIZE)),
                    static_cast<int>(scale * dc.GetDeviceCaps(VERTSIZE)));
    dc.SetViewportExt(dc.GetDeviceCaps(HORZRES), -dc.GetDeviceCaps(VERTRES));
}

}  // namespace MARLINSUITE
