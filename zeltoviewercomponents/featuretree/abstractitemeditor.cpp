// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "abstractitemeditor.h"

AbstractItemEditor::~AbstractItemEditor() = default;
