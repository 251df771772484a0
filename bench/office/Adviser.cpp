#include "bench/office/Adviser.h"

#include <QEventLoop>
#include <QSqlError>
#include <QTimer>
#include <cstdio>
#include <ctime>
#include <iostream>
#include <sstream>
#include <utility>

#include "bench/office/Worker.h"

namespace brivane::bench {
namespace {

constexpr std::int64_t kBetween = 500'000;
constexpr int kEditsInAClient = 20;
constexpr std::chrono::seconds kPatience{10};

/// Waits as a window does: what happens meanwhile is met.
void WaitUntil(std::int64_t moment) {
  for (std::int64_t left = moment - Now(); left > 0; left = moment - Now()) {
    QEventLoop loop;
    QTimer::singleShot(std::chrono::milliseconds((left + 999) / 1000), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
  }
}

template <class Body> std::int64_t Took(Body&& body) {
  const std::int64_t start = Now();
  body();
  return Now() - start;
}

/// What this process computed so far, in microseconds: a session has a thread of its own.
std::int64_t Computed() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return std::int64_t{time.tv_sec} * 1'000'000 + time.tv_nsec / 1000;
}

/// Edits that change any column, as no two have the same number: a text, an amount, and a form of which five boxes are
/// filled.
void DoEdit(dossier::Desk& desk, int number) {
  switch (number % 3) {
    case 0: desk.Type("TxtOm", "Bewerking " + std::to_string(number)); break;
    case 1: desk.Type("TxtBd", number + 0.25); break;
    case 2:
      desk.Toolkit().modal = [number](controls::Form& form) {
        for (int row = 2; row <= 6; ++row) form.Find("txtBedrag", row)->Perform(controls::Enter{number + row / 100.0});
        form.Find("cmdOK")->Perform(controls::Press{});
      };
      desk.Do("cmdScenario", controls::Press{});
      break;
  }
}

}  // namespace

Adviser::Adviser(Workplace place)
    : place_(std::move(place)),
      words_(QString::fromStdString(place_.words) + QString(" user=adviseur_%1").arg(place_.who)),
      chance_(static_cast<unsigned>(place_.who)),
      office_(std::make_shared<dossier::OfficeConnection>(words_)),
      plain_(QSqlDatabase::addDatabase("QPSQL", "plain")),
      row_(place_.first + place_.who),
      number_(place_.number) {
  office_->OpenOffice();
  plain_.setConnectOptions(words_);
  if (!plain_.open()) std::cout << "failed to connect: " << plain_.lastError().text().toStdString() << '\n';
  update_ = std::make_unique<QSqlQuery>(plain_);
  update_->prepare("UPDATE los SET bedrag = ? WHERE client = ?");
}

Adviser::~Adviser() { LetGo(); }

void Adviser::Work() {
  std::cout << "done" << std::endl;
  for (std::string line; std::getline(std::cin, line);) {
    std::istringstream words(line);
    std::string what;
    std::int64_t next = 0;
    std::int64_t seconds = 0;
    words >> what >> next >> seconds;
    // Each at moments of his own. What is done once in a session is not counted among the rest.
    next += static_cast<std::int64_t>(chance_() % kBetween);
    WaitUntil(next - kBetween);
    if (what == "bare") UpdateRow();
    if (what == "edit" && !store_) {
      TakeClient();
      Edit("first");
    }
    for (const std::int64_t end = next + seconds * 1'000'000; next < end; next += kBetween) {
      WaitUntil(next);
      if (what == "bare") std::cout << "bare " << Took([&] { UpdateRow(); }) << '\n';
      if (what == "edit") Edit("edit");
      if (what == "along") EditWithReader();
      if (store_ && stored_ == kEditsInAClient) TakeClient();
    }
    std::cout << "done" << std::endl;
  }
}

void Adviser::UpdateRow() {
  if (number_ % kEditsInAClient == 0) row_ = AnyClient();
  update_->addBindValue(++number_ + 0.25);
  update_->addBindValue(row_);
  if (!update_->exec()) std::cout << "failed update: " << update_->lastError().text().toStdString() << '\n';
}

int Adviser::AnyClient() {
  const int among = chance_() % 2 == 0 ? std::min(2 * place_.advisers, place_.clients) : place_.clients;
  return place_.first + static_cast<int>(chance_() % static_cast<unsigned>(among));
}

void Adviser::TakeClient() {
  LetGo();
  while (true) {
    const int client = AnyClient();
    const std::int64_t took = Took([&] { store_ = dossier::OfficeStore::Open(office_, client); });
    if (!store_->IsReadOnly()) {
      std::cout << "open " << took << '\n';
      break;
    }
    std::cout << "other\n";
    store_.reset();
  }
  held_since_ = Now();
  stored_ = 0;
  subscriptions_ = {};
  subscriptions_ += store_->Bewerkingen().Stored.Connect([this] { ++stored_; });
  desk_ = std::make_unique<dossier::Desk>(*store_);
  desk_->Bind(0, 1);
}

void Adviser::LetGo() {
  if (!store_) return;
  std::cout << "held " << place_.who << ' ' << store_->Client() << ' ' << held_since_ << ' ' << Now() << ' ' << stored_
            << '\n';
  desk_.reset();
  subscriptions_ = {};
  store_.reset();
}

void Adviser::Edit(const char* figure) {
  const int before = stored_;
  ++number_;
  const std::int64_t computed = Computed();
  const std::int64_t took = Took([&] { DoEdit(*desk_, number_); });
  if (stored_ != before + 1 || !desk_->reports.empty()) {
    std::cout << "failed edit " << number_ << ' '
              << (desk_->reports.empty() ? std::string() : desk_->reports.back().ErrorDescription) << '\n';
    desk_->reports.clear();
  } else {
    std::cout << figure << ' ' << took << '\n' << "computed " << Computed() - computed << '\n';
  }
}

void Adviser::EditWithReader() {
  if (!reader_office_) {
    reader_office_ = std::make_shared<dossier::OfficeConnection>(QString::fromStdString(place_.words) + " user=rob");
    reader_office_->OpenOffice();
  }
  if (!reader_ || reader_->Client() != store_->Client()) {
    reader_ = dossier::OfficeStore::Open(reader_office_, store_->Client());
    shown_ = {};
    shown_ += reader_->Herladen.Connect([this] {
      if (accepted_ == 0) return;
      std::cout << "shown " << Now() - std::exchange(accepted_, 0) << '\n';
      shows_.quit();
    });
  }
  Edit("watched");
  accepted_ = Now();
  QTimer patience;
  QObject::connect(&patience, &QTimer::timeout, &shows_, &QEventLoop::quit);
  patience.start(kPatience);
  shows_.exec();
  if (std::exchange(accepted_, 0) != 0) std::cout << "failed an edit does not show\n";
}

}  // namespace brivane::bench
