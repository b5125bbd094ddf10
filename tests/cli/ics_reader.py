"""Reads an iCalendar stream of orrivane-cal ics back with the icalendar package (an independent
reader) and checks it against the tasks it was made from and against orrivane-cal due.

    ics_reader.py ICS_FILE DUE_FILE

DUE_FILE holds the lines of `orrivane-cal due` over a range that holds every reminder
("2001-03-05 10:00<TAB>task 2 - Review #2"). The alarms of each event must fire at the minutes
of its lines there, read in universal time (the test runs with TZ=UTC).
"""
import collections
import datetime
import sys

import icalendar

UTC = datetime.timezone.utc


def at(text):
    return datetime.datetime.strptime(text, "%Y-%m-%d %H:%M")


# UID prefix: summary, member (or None for a reminder of no task), start, end (None: one moment).
EXPECTED = {
    "task-1-": ("Dentist", "Anna", "2001-03-05 14:30", "2001-03-05 15:45"),
    "task-2-": ("Review #2", "Anna", "2001-03-05 10:00", "2001-03-05 11:00"),
    "task-3-": ("Standup", "Bob", "2001-03-05 10:00", None),
    "task-9-": ("New Year", "Anna", "2001-12-31 23:30", "2002-01-01 00:30"),
    "task-10-": ("New Year", "Anna", "2001-12-31 23:30", "2002-01-01 00:30"),
    "task-4-": ("Night shift", "Bob", "2001-03-05 22:00", "2001-03-06 06:00"),
    "task-5-": ("Turn of 2200", "Carl", "2199-12-31 23:00", "2200-01-01 01:00"),
    "task-21-": ("Busy", "Carl", "2199-12-31 06:00", "2200-01-01 06:00"),
    "task-22-": ("Edge", "Carl", "9999-12-31 23:00", None),
    "note-4-": ("Backup", None, "2001-03-05 10:25", None),
    "note-8-": ("Call", None, "2001-03-05 13:15", None),
    "note-12-": ("Century", None, "2200-01-01 00:00", None),
}
MOST_ALARMS = 1000


def fail(message):
    print("FAIL: ics: " + message, file=sys.stderr)
    sys.exit(1)


def alarm_instants(event):
    """Every instant at which the event's alarms fire, REPEAT and DURATION expanded."""
    instants = []
    for alarm in event.walk("VALARM"):
        trigger = alarm.decoded("TRIGGER")
        if not isinstance(trigger, datetime.datetime) or trigger.tzinfo is None:
            fail("%s: a trigger that is no absolute time: %r" % (event["UID"], trigger))
        repeat = int(alarm.get("REPEAT", 0))
        step = alarm.decoded("DURATION") if repeat else datetime.timedelta(0)
        instants.extend(trigger + k * step for k in range(repeat + 1))
    return sorted(i.astimezone(UTC).replace(tzinfo=None) for i in instants)


def due_minutes(path):
    """The minutes of `due` for each task and reminder, keyed as the UIDs begin."""
    minutes = collections.defaultdict(list)
    with open(path, encoding="utf-8") as lines:
        for line in lines:
            minute, what = line.rstrip("\n").split("\t")
            kind, number = what.split(" ")[:2]
            minutes["%s-%s-" % (kind, number)].append(at(minute))
    return minutes


def main(ics_path, due_path):
    with open(ics_path, "rb") as stream:
        calendar = icalendar.Calendar.from_ical(stream.read())
    events = list(calendar.walk("VEVENT"))
    due = due_minutes(due_path)
    seen = set()
    for event in events:
        uid = str(event["UID"])
        prefix = next((p for p in EXPECTED if uid.startswith(p)), None)
        if prefix is None:
            fail("an event that stands for no task or reminder: " + uid)
        seen.add(prefix)
        summary, member, start, end = EXPECTED[prefix]
        if str(event["SUMMARY"]) != summary:
            fail("%s: summary %r" % (uid, str(event["SUMMARY"])))
        dtstart = event.decoded("DTSTART")
        if dtstart.tzinfo is not None or dtstart != at(start):
            fail("%s: start %r" % (uid, dtstart))
        dtend = event.decoded("DTEND") if "DTEND" in event else None
        if (dtend is None) != (end is None) or (end and (dtend.tzinfo is not None or dtend != at(end))):
            fail("%s: end %r" % (uid, dtend))
        if member is not None and member not in str(event.get("CATEGORIES").to_ical(), "utf-8"):
            fail("%s: member %r" % (uid, event.get("CATEGORIES")))
        if alarm_instants(event) != due[prefix][:MOST_ALARMS]:
            fail("%s: alarms %r, due at %r" % (uid, alarm_instants(event)[:5], due[prefix][:5]))
    if seen != set(EXPECTED) or len(events) != len(EXPECTED):
        fail("events %r" % sorted(seen))
    print("%d events read back" % len(events))


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
