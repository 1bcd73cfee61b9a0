// SPDX-License-Identifier: MIT
#pragma once

#include "framework/base/ZAMExport.h"
#include "framework/model/ZAMPrtModel.h"

/// Carries the model that a decode fills. The model is borrowed: it belongs to the caller and must outlive the driver.
class ZAM_EXPORT ZAMPrintSVGModelDriver {
public:
    explicit ZAMPrintSVGModelDriver(ZAMPrtModel* model) : _Model(model) {}
    ZAMPrintSVGModelDriver(const ZAMPrintSVGModelDriver&) = delete;
    ZAMPrintSVGModelDriver& operator=(const ZAMPrintSVGModelDriver&) = delete;
    virtual ~ZAMPrintSVGModelDriver();

    [[nodiscard]] ZAMPrtModel* GetModel() const { return _Model; }

private:
    ZAMPrtModel* _Model;
};
