#include "grid/display/CGridSideHdg.h"

#include "grid/control/CGridCtrl.h"

void CGridSideHdg::NotifyLClicked(Click& click, int updn) {
  m_control->OnSH_LClicked(click.col, click.row, updn, &click.rect, &click.point, click.processed);
}

void CGridSideHdg::NotifyRClicked(Click& click, int updn) {
  m_control->OnSH_RClicked(click.col, click.row, updn, &click.rect, &click.point, click.processed);
}

void CGridSideHdg::NotifyDClicked(Click& click) {
  m_control->OnSH_DClicked(click.col, click.row, &click.rect, &click.point, click.processed);
}
