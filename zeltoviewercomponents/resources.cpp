// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "resources_p.h"

#include <QtGlobal>

bool initZeltoResources()
{
    Q_INIT_RESOURCE(zeltofilterfiles);
    Q_INIT_RESOURCE(zeltoviewercomponents);
    Q_INIT_RESOURCE(zelto_zeltoviewercomponents_translations);
    return true;
}
