#pragma once

#include "settings/settings_form.h"
#include "settings/work_time/time_store.h"

#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include <memory>
#include <vector>

namespace kurbo {

namespace Ui {
class frmWorkTime;
}
class DataList;
class DayChart;
class Grid;

// The named work times that people are assigned to, on five pages of one build.
class frmWorkTime final : public SettingsForm {
    Q_OBJECT

  public:
    explicit frmWorkTime(Client& client, QWidget* parent = nullptr);
    ~frmWorkTime() override;

    // The page, from 0, that load() shows, if the company has it.
    void setFirstPage(int page) { shown_ = page; }

  protected:
    void readAll() override;
    void showState() override;
    void openUpdate() override;
    [[nodiscard]] bool mayClose() override;

  private:
    // One page: what it works on, and its controls.
    struct Page {
        Page(const TimePage& page, const clsWorkTime& style) : sheet(page, style) {}
        TimeSheet sheet;
        QMenu* mnuPage = nullptr;
        DataList* dtsList = nullptr;
        QLineEdit* txtName = nullptr;
        Grid* vfgTimes = nullptr;
        DayChart* picDay = nullptr; // none on the page of limits
        QPushButton* cmdUpdate = nullptr;
        QAction* mnuUpdate = nullptr;
        std::vector<QLabel*> lblLegend;
    };

    template <typename Control>
    [[nodiscard]] Control* find(const QString& prefix, const Page& page) const;
    void dressPage(Page& page);
    void connectPage(Page& page);
    [[nodiscard]] Connection& connection() const { return client_.HomeConnection; }
    [[nodiscard]] Page& shownPage() const { return *pages_[static_cast<std::size_t>(shown_)]; }

    void loadPage(Page& page);
    bool showRecord(Page& page, std::int64_t code);
    bool showNames(Page& page);
    void showAnew(Page& page, std::int64_t code);
    void SetLegend(const Page& page);
    void DrawDayChart(const Page& page);
    void edited(Page& page);
    void chosen(Page& page);
    void pageChosen(int index);
    void updateRecord(Page& page);
    void removeRecord(Page& page);
    void printRecord(const Page& page);

    const std::unique_ptr<Ui::frmWorkTime> ui_;
    clsWorkTime style_;
    std::vector<std::unique_ptr<Page>> pages_;
    int shown_ = 0;
};

} // namespace kurbo
