#include "walkqueue_p.h"

#include <QList>
#include <QTest>

namespace {

using Queue = platform::WalkQueue<int, QChar>;

/// The subfolders of the folder at @p position, as one batch.
void add(Queue &queue, Queue::Position position, std::vector<int> folders)
{
    queue.add(position, folders);
    QVERIFY(folders.empty());
}

} // namespace

class TestWalkQueue : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // A folder may add its subfolders bit by bit, while it is being read.
    void foldersAreTakenInTheOrderOfOneWalker()
    {
        Queue queue(nullptr);
        const Queue::Position root = queue.beginRoot();
        add(queue, root, {1, 2});
        add(queue, root, {3});
        queue.addLink(u'x');
        QList<int> taken;
        QList<QChar> links;
        struct Reader {
            Queue &queue;
            Queue::Position root;
            QList<int> &taken;
            QList<QChar> &links;
            void operator()(int folder, Queue::Position position) const
            {
                taken.append(folder);
                if (folder == 1) {
                    add(queue, position, {11, 12});
                    add(queue, root, {4}); // by another walker
                    add(queue, position, {13});
                    queue.endRoot(root);
                } else if (folder == 12) {
                    add(queue, position, {121});
                }
            }
            void operator()(QChar link, Queue::Position position) const
            {
                links.append(link);
                taken.append(0);
                if (link == u'x')
                    add(queue, position, {91, 92});
            }
        };
        queue.process(Reader{queue, root, taken, links});
        QCOMPARE(taken, (QList<int>{1, 11, 12, 121, 13, 2, 3, 4, 0, 91, 92}));
        QCOMPARE(links, QList<QChar>{u'x'});
    }

    void aStopEndsIt()
    {
        std::atomic_bool stop = false;
        Queue queue(&stop);
        const Queue::Position root = queue.beginRoot();
        add(queue, root, {1, 2, 3});
        queue.endRoot(root);
        int taken = 0;
        queue.process([&](auto, Queue::Position) { stop = ++taken == 2; });
        QCOMPARE(taken, 2);
    }
};

QTEST_GUILESS_MAIN(TestWalkQueue)
#include "tst_walkqueue.moc"
