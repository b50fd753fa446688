#include <type_traits>

#include "grid/data/CGridCell.h"

static_assert(std::has_unique_object_representations_v<coregui::CellLook>);

namespace {

// Every fresh cell has these, and only these of the properties here.
constexpr DWORD USUAL = CELLPROP_DATATYPE | CELLPROP_TEXTCOLOR | CELLPROP_BACKCOLOR | CELLPROP_HTEXTCOLOR |
                        CELLPROP_HBACKCOLOR | CELLPROP_ALIGNMENT;
constexpr DWORD SPECIAL = CELLPROP_FORMAT | CELLPROP_STYLE | CELLPROP_CELLTYPE | CELLPROP_CELLTYPEEX |
                          CELLPROP_BORDER | CELLPROP_BORDERCOLOR | CELLPROP_FONT | CELLPROP_BITMAP |
                          CELLPROP_READONLY | CELLPROP_DECIMALS;

}  // namespace

// Each cell that is shown goes through here, most of them with the usual properties alone.
void coregui::CellLook::CopySetFieldsFrom(const CellLook& source) {
  const auto has = [&source](long bit) { return (source.flags & static_cast<DWORD>(bit)) != 0; };
  const bool all = (source.flags & USUAL) == USUAL;
  if (all || has(CELLPROP_DATATYPE)) dataType = source.dataType;
  if (all || has(CELLPROP_TEXTCOLOR)) textColor = source.textColor;
  if (all || has(CELLPROP_BACKCOLOR)) backColor = source.backColor;
  if (all || has(CELLPROP_HTEXTCOLOR)) highlightTextColor = source.highlightTextColor;
  if (all || has(CELLPROP_HBACKCOLOR)) highlightBackColor = source.highlightBackColor;
  if (all || has(CELLPROP_ALIGNMENT)) alignment = source.alignment;
  if ((source.flags & SPECIAL) == 0) return;
  if (has(CELLPROP_FORMAT)) format = source.format;
  if (has(CELLPROP_STYLE)) style = source.style;
  if (has(CELLPROP_CELLTYPE)) cellType = source.cellType;
  if (has(CELLPROP_CELLTYPEEX)) cellTypeEx = source.cellTypeEx;
  if (has(CELLPROP_BORDER)) border = source.border;
  if (has(CELLPROP_BORDERCOLOR)) borderPen = source.borderPen;
  if (has(CELLPROP_FONT)) font = source.font;
  if (has(CELLPROP_BITMAP)) bitmap = source.bitmap;
  if (has(CELLPROP_READONLY)) readOnly = source.readOnly;
  if (has(CELLPROP_DECIMALS)) decimals = source.decimals;
}

void CGridCell::MergeFrom(CGridCell& source) {
  m_look.CopySetFieldsFrom(source.m_look);
  if (source.Has(CELLPROP_TEXT)) {
    m_text = source.m_text;
    m_number = source.m_number;
  }
  if (source.Has(CELLPROP_MASK)) m_mask = source.m_mask;
  if (source.Has(CELLPROP_LABEL)) m_label = source.m_label;
  if (source.Has(CELLPROP_PARAM)) m_param = source.m_param;
  if (source.Has(CELLPROP_JOIN)) m_join = source.m_join;
  if (source.Has(CELLPROP_EXTRAMEM)) {
    m_extra = source.m_extra;
  } else {
    // Kept: both lose the pointer. Each still holds its block, which lives on until the cell is destroyed or
    // gets another.
    m_extra.pointer = nullptr;
    source.m_extra.pointer = nullptr;
  }
  // Kept: the snapshot goes along whatever is set, and is shared from then on.
  m_initial = source.m_initial;
}

int CGridCell::CopyCellInfo(CGridCell* source, CGridCell* target) {
  target->m_look.flags = source->m_look.flags;
  return AddCellInfo(source, target);
}

int CGridCell::AddCellInfo(CGridCell* source, CGridCell* target) {
  target->m_look.flags |= source->m_look.flags;
  target->MergeFrom(*source);
  return 0;
}

int CGridCell::CopyInfoFrom(CGridCell* source) {
  return CopyCellInfo(source, this);
}

int CGridCell::CopyInfoTo(CGridCell* target) {
  return CopyCellInfo(this, target);
}

int CGridCell::AddInfoFrom(CGridCell* source) {
  return AddCellInfo(source, this);
}

int CGridCell::AddInfoTo(CGridCell* target) {
  return AddCellInfo(this, target);
}

int CGridCell::SetInitialState() {
  m_initial.reset();
  // The snapshot is complete before this cell holds it, so that it never holds itself.
  auto snapshot = std::make_shared<CGridCell>();
  snapshot->CopyInfoFrom(this);
  m_initial = std::move(snapshot);
  return 0;
}

int CGridCell::LoadInitialState() {
  if (m_initial == nullptr) return 0;
  const std::shared_ptr<CGridCell> snapshot = m_initial;
  CopyInfoFrom(snapshot.get());
  m_initial = snapshot;
  return 0;
}

int CGridCell::ClearMemory() {
  m_initial.reset();
  return ClearExtraMem();
}
